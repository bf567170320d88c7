"""The rows about documents: images copied or converted by our convert, compared with img2pdf, which
copies as well, and against the real convert with no limits."""

from material import CONVERT
from rows import Row
from timing import in_turn, run

IMG2PDF = "img2pdf"


class Documents:
    """Measures with what `bench` knows of the build and the material."""

    def __init__(self, bench):
        self.bench = bench
        self.material = bench.material
        self.ours = bench.tool("convert")
        self.target = self.material.output / "document.pdf"

    def _by_ours(self, images, together, options=()):
        return run([self.ours, *options, *images, self.target], together=together)

    def _by_img2pdf(self, images, together):
        return run([IMG2PDF, "-o", self.target, *images], together=together)

    def _by_real(self, images, together, options=()):
        environment = self.material.stock_environment(bounded=False)
        return run([CONVERT, *options, *images, self.target], environment, together)

    def _rows(self, name, by, images, turns, limits, **options):
        """A row of the time, and one of the peak memory where `limits` has a second one."""
        together = len(limits) > 1
        results = in_turn(
            lambda: self._by_ours(images, together, **options),
            lambda: by(images, together, **options),
            turns,
        )
        self.target.unlink()
        walls = ([one.wall * 1000 for one in runs] for runs in results)
        if len(limits) == 1:
            yield Row(name, *walls, "ms", limits[0])
            return
        peaks = ([one.peak for one in runs] for runs in results)
        yield Row(f"{name}, time", *walls, "ms", limits[0])
        yield Row(f"{name}, peak memory", *peaks, "MiB", limits[1])

    def copied_scan(self, turns):
        scan = sorted(self.material.pages.iterdir())[:1]
        for by, name, limit in (
            (self._by_img2pdf, "one scan copied, img2pdf", 0.20),
            (self._by_real, "one scan copied, real convert", 0.10),
        ):
            yield from self._rows(name, by, scan, turns, [limit])

    def merged_copies(self, turns):
        scans = sorted(self.material.pages.iterdir())
        greys = sorted(self.material.greys.iterdir())
        for name, images, by, limits in (
            ("100 JPEG scans copied, img2pdf", scans, self._by_img2pdf, [1.00, 0.60]),
            ("100 JPEG scans copied, real convert", scans, self._by_real, [0.05, 0.02]),
            ("100 grey PNG scans copied, img2pdf", greys, self._by_img2pdf, [1.00]),
            ("60-page Group 4 TIFF copied, img2pdf", [self.material.fax], self._by_img2pdf, [1.00]),
        ):
            yield from self._rows(name, by, images, turns, limits)

    def converted(self, turns):
        tiffs = sorted(self.material.tiffs.iterdir())
        name = "60 LZW TIFFs converted, real convert"
        yield from self._rows(name, self._by_real, tiffs, turns, [0.70, 0.30])

    def fitted(self, turns):
        scan, options = sorted(self.material.pages.iterdir())[:1], ["-resize", "595x842"]
        name = "JPEG scan fitted to A4, real convert"
        yield from self._rows(name, self._by_real, scan, turns, [0.55], options=options)

    def photos(self, turns):
        ours, against = in_turn(
            lambda: self.bench.said("bench_chain", self.material.photos, self.material.output),
            lambda: self.bench.loop(
                self.material.photos, CONVERT, environment=self.material.stock_environment()
            ),
            turns,
        )
        yield Row("chain of photos", ours, against, "ms", 0.15)
