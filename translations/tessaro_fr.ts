<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Le programme ne peut pas démarrer : %1. Il lui faut un dossier à lui, dans XDG_DATA_HOME ou ~/.local/share, où il puisse écrire, créer des liens et exécuter des programmes.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Le programme ne peut pas démarrer : %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Il n’y a pas d’écran sur lequel afficher la fenêtre.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Il n’y a pas d’option %1&#xa0;; voir --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Il n’y a pas de fichier %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Convertit des images en documents PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Images à mettre dans la liste à l’ouverture de la fenêtre.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Convertisseur d’images en PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Veuillez choisir les fichiers à convertir.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Tous les formats pris en charge(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Fichier BMP(*.bmp);;Fichier GIF(*.gif);;Fichier JPEG(*.jpg;*.jpeg);;Fichier PBM(*.pbm);;Fichier PCX(*.pcx);;Fichier PNG(*.png);;Fichier PPM(*.ppm);;Fichier TIF(*.tif;*.tiff);;TOUS les fichiers(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Choisir les fichiers à convertir</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Choisissez le dossier où enregistrer les fichiers convertis.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Les images à convertir&#xa0;; déposez ici des fichiers pour en ajouter</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>L’image de la ligne en cours</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Ajouter des images à la liste</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Retirer de la liste les images sélectionnées</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dossier cible</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Le dossier qui reçoit les fichiers PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Choisir le dossier cible</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Fusionner en un seul PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Réunir toutes les images en un seul PDF, nommé d’après la première</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Convertir les images en PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Degrés dans le sens horaire&#xa0;; pour un autre angle, saisissez-le et appuyez sur Entrée</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Taille de page</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Ajuster chaque image à cette page</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Mode de stockage des images dans le PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Titre du PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Sujet du PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Mots-clés du PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Auteur du PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Mot de passe du propriétaire</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Nécessaire pour modifier les autorisations&#xa0;; sans espaces</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Mot de passe de l’utilisateur</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Nécessaire pour ouvrir le PDF&#xa0;; sans espaces</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Fichiers et dossier cible</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Apparence des pages</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Description du PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Mots de passe et autorisations</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Images commencées jusqu’ici</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Dossier cible</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Options d’apparence des pages du PDF&#xa0;:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Taille de page</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Convertir en PDF noir et blanc</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Options de description du PDF&#xa0;:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Options de sécurité&#xa0;: mots de passe et autorisations
du PDF&#xa0;:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Autoriser l’impression</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Autoriser l’assemblage du document</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Autoriser la copie du contenu</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Autoriser les commentaires</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Fichier image</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>90</source>
        <translation>90</translation>
    </message>
    <message>
        <source>180</source>
        <translation>180</translation>
    </message>
    <message>
        <source>270</source>
        <translation>270</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Bzip</source>
        <translation>Bzip</translation>
    </message>
    <message>
        <source>CCITT Group 3</source>
        <translation>CCITT Group 3</translation>
    </message>
    <message>
        <source>CCITT Group 4</source>
        <translation>CCITT Group 4</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>JPEG2000</source>
        <translation>JPEG2000</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codage par plages (RLE)</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 mm)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 mm)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 mm)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 mm)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 mm)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 mm)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 mm)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 mm)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 mm)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 mm)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 mm)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 mm)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 mm)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 mm)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 mm)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 mm)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 mm)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 mm)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 mm)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>Faites glisser des lignes ou appuyez sur %1 et %2 pour changer l’ordre des pages.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir l’image</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Ouvrir le PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Placer au début</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Placer à la fin</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Trier par nom, 2 avant 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Trier par ordre d’ajout</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Ajouter des images…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Rétablir</translation>
    </message>
</context>
</TS>
