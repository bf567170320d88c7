<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>O programa não pode ser iniciado: %1. Ele precisa de uma pasta própria, em XDG_DATA_HOME ou ~/.local/share, na qual possa gravar, criar links e executar programas.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>O programa não pode ser iniciado: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Não há uma tela na qual mostrar a janela.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Não existe a opção %1; veja --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Não existe o arquivo %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Converte imagens em documentos PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Imagens a listar quando a janela abrir.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Mostrar esta ajuda e sair.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Mostrar a versão e sair.</translation>
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
        <translation>pol</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Conversor de imagens em PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Nenhum arquivo</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Escolha os arquivos a converter.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Todos os formatos suportados(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Arquivo BMP(*.bmp);;Arquivo GIF(*.gif);;Arquivo JPEG(*.jpg;*.jpeg);;Arquivo PBM(*.pbm);;Arquivo PCX(*.pcx);;Arquivo PNG(*.png);;Arquivo PPM(*.ppm);;Arquivo TIF(*.tif;*.tiff);;TODOS os arquivos(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Escolher os arquivos a converter</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Escolha a pasta onde salvar os arquivos convertidos.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>As imagens a converter; solte arquivos aqui para adicioná-los</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>A imagem da linha atual</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Adicionar imagens à lista</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Tirar da lista as imagens selecionadas</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Remover tudo</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Esvaziar a lista</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Pasta de saída</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>A pasta que recebe os arquivos PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Escolher a pasta de saída</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Mesclar em um único PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Criar um só PDF com todas as imagens, com o nome da primeira</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converter</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Converter as imagens em PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Graus no sentido horário; para outro ângulo, digite-o e pressione Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Tamanho da página</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Ajustar cada imagem a esta página</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressão</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Como as imagens são guardadas no PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Título do PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Assunto</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Assunto do PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palavras-chave</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Palavras-chave do PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autor do PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Senha de proprietário</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Necessária para alterar as permissões; sem espaços</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Senha de usuário</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Necessária para abrir o PDF; sem espaços</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Arquivos e pasta de saída</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Aparência das páginas</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Descrição do PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Senhas e permissões</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Sobre este programa</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Imagens iniciadas até agora</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Remover tudo</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Pasta de saída</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opções de aparência das páginas do PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Tamanho da página</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Converter em PDF preto e branco</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opções de descrição do PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opções de segurança: senhas e permissões
do PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Permitir impressão</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Permitir montagem do documento</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Permitir cópia de conteúdo</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Permitir comentários</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Arquivo de imagem</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Tamanho</translation>
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
        <translation>Nenhuma</translation>
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
        <translation>Sem perdas</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codificação RLE</translation>
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
        <translation>Arraste linhas ou pressione %1 e %2 para mudar a ordem das páginas.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagem</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Abrir PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Mover para o início</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Mover para o fim</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Ordenar por nome, 2 antes de 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Ordenar pela ordem de adição</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Adicionar imagens…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Redefinir</translation>
    </message>
</context>
</TS>
