"""The files that the measurements work on, made once and kept in the build folder."""

import os
import subprocess
from pathlib import Path

CONVERT = "/usr/bin/convert"
PDFTK = "/usr/bin/pdftk"

# The policy without which the real ImageMagick makes no PDF.
ALLOWED = '<policymap><policy domain="coder" rights="read|write" pattern="PDF"/></policymap>'
# The same without limits.
UNBOUNDED = "<policymap>%s</policymap>" % "".join(
    f'<policy domain="resource" name="{name}" value="{value}"/>'
    for name, value in {
        "width": "1GP", "height": "1GP", "area": "1TP",
        "memory": "1TiB", "map": "1TiB", "disk": "1TiB",
    }.items()
)  # fmt: skip

FIELDS = {"Title": "Holiday", "Subject": "Scans", "Keywords": "a, b", "Author": "Somebody"}
# As the real pdftk reads all four, and as the window writes them.
INFO = "".join(f"InfoBegin\nInfoKey: {key}\nInfoValue: {text}\n" for key, text in FIELDS.items())
OWN_INFO = "".join(f"InfoKey:{key}\nInfoValue:{text}\n" for key, text in FIELDS.items())

SMALL_IMAGES = 300
IMAGES_TO_FINISH = 100
PAGES = 100
FAX_PAGES = 60
TIFFS = 60
PHOTOS = 60
FILES = 10000


def make_image(path, *words):
    subprocess.run([CONVERT, *words, path], check=True)


def link_all(original, folder, names):
    folder.mkdir(parents=True)
    for name in names:
        os.link(original, folder / name)


class Material:
    """Paths of everything; `folder` is filled when it is not yet."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.pixel = self.folder / "pixel.png"
        self.pixel_bmp = self.folder / "pixel.bmp"
        self.photo = self.folder / "photo.jpg"
        self.large = self.folder / "large.jpg"
        self.photos = self.folder / "photos"
        self.greys = self.folder / "greys"
        self.tiffs = self.folder / "tiffs"
        self.fax = self.folder / "fax.tif"
        self.small = self.folder / "small"
        self.to_finish = self.folder / "to-finish"
        self.pages = self.folder / "pages"
        self.files = self.folder / "files"
        self.scan_pdf = self.folder / "scan.pdf"
        self.scans_pdf = self.folder / "scans.pdf"
        self.info = self.folder / "info.txt"
        self.own_info = self.folder / "own-info.txt"
        self.output = self.folder / "output"
        self._make()

    def stock_environment(self, bounded=True):
        """The environment in which the real ImageMagick may write PDF files."""
        environment = dict(os.environ)
        environment["XDG_CONFIG_HOME"] = str(self.folder / "allowed")
        environment["HOME"] = str(self.folder)
        if not bounded:
            environment["MAGICK_CONFIGURE_PATH"] = str(self.folder / "unbounded")
        return environment

    def _make(self):
        done = self.folder / "complete"
        if done.exists():
            return
        if self.folder.exists():
            subprocess.run(["rm", "-rf", "--", self.folder], check=True)
        self.output.mkdir(parents=True)
        self._make_configuration()
        self._make_images()
        self._make_files()
        done.touch()

    def _make_configuration(self):
        for name, text in {
            "allowed/ImageMagick/policy.xml": ALLOWED,
            "unbounded/policy.xml": UNBOUNDED,
            "info.txt": INFO,
            "own-info.txt": OWN_INFO,
        }.items():
            path = self.folder / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="ascii")

    def _make_images(self):
        for pixel in (self.pixel, self.pixel_bmp):
            make_image(pixel, "-size", "1x1", "xc:teal")
        small = self.folder / "small.png"
        make_image(small, "-size", "120x90", "gradient:teal-white")
        for folder, count in ((self.small, SMALL_IMAGES), (self.to_finish, IMAGES_TO_FINISH)):
            link_all(small, folder, [f"image-{n:03}.png" for n in range(count)])
        noise = ["-seed", "7", "-size", "1000x750", "plasma:", "-resize", "400%"]
        make_image(self.photo, *noise, "-sampling-factor", "4:2:0", "-quality", "85")
        subprocess.run(
            [CONVERT, self.photo, "-resize", "9660x7245", "-quality", "85", self.large],
            env=self.stock_environment(bounded=False), check=True,
        )  # fmt: skip
        page = self.folder / "page.jpg"
        paper = ["-seed", "7", "-size", "620x877", "plasma:white-gray70", "-resize", "400%"]
        make_image(page, *paper, "-density", "300", "-quality", "85")
        link_all(page, self.pages, [f"page-{n:03}.jpg" for n in range(PAGES)])
        for pdf, count in ((self.scan_pdf, 1), (self.scans_pdf, PAGES)):
            subprocess.run(["img2pdf", "-o", pdf, *[page] * count], check=True)
        link_all(self.photo, self.photos, [f"photo-{n:03}.jpg" for n in range(PHOTOS)])
        self._make_scans(page)

    def _make_scans(self, page):
        grey, tiff, fax = (self.folder / name for name in ("grey.png", "lzw.tif", "page.tif"))
        make_image(grey, page, "-colorspace", "Gray", "-depth", "8")
        make_image(tiff, page, "-compress", "LZW")
        make_image(fax, page, "-threshold", "60%", "-compress", "Group4")
        link_all(grey, self.greys, [f"grey-{n:03}.png" for n in range(PAGES)])
        link_all(tiff, self.tiffs, [f"page-{n:03}.tif" for n in range(TIFFS)])
        subprocess.run(["tiffcp", *[fax] * FAX_PAGES, self.fax], check=True)

    def _make_files(self):
        self.files.mkdir()
        for number in range(FILES):
            # Half of them below and half of them above the size at which the unit changes.
            with open(self.files / f"scan-{number:05}.jpg", "wb") as file:
                file.truncate(1000 + number * 210)
