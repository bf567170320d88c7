"""The rows of the table: what each runs, what it is compared with, and what it has to reach."""

import json
import subprocess
from dataclasses import dataclass, field
from pathlib import Path
from statistics import median

from material import CONVERT, PDFTK
from timing import Failed, in_turn, run

LOOP = Path(__file__).with_name("loop")
TITLE, PASSWORD = "Holiday", "secret"


@dataclass
class Row:
    """One measured row. `limit` bounds the ratio, or the difference where `difference` is set;
    a row without a limit informs only."""

    name: str
    ours: list
    against: list
    unit: str
    limit: float | None = None
    difference: bool = False
    samples: dict = field(init=False)

    def __post_init__(self):
        self.samples = {"ours": self.ours, "against": self.against}
        self.ours, self.against = median(self.ours), median(self.against)

    @property
    def result(self):
        return self.ours - self.against if self.difference else self.ours / self.against

    @property
    def reached(self):
        return None if self.limit is None else self.result <= self.limit


class Bench:
    """Measures; `programs` is the build's bench folder, `contents` the application's bundle."""

    def __init__(self, build, material):
        self.programs = Path(build) / "bench"
        self.contents = Path(build) / "Tessaro.app/Contents"
        self.material = material

    def program(self, name):
        return self.programs / name / "Tessaro.app/Contents/MacOS" / name

    def tool(self, name):
        return self.contents / "MacOS" / name

    def said(self, name, *words):
        """What one of our programs measured by itself, as it prints it."""
        command = [self.program(name), *map(str, words)]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise Failed(command, done.returncode)
        return json.loads(done.stdout)

    def chains(self, turns):
        bundle = self.tool("convert")
        ours, against = in_turn(
            lambda: self.said("bench_chain", self.material.small, self.material.output),
            lambda: self.loop(self.material.small, bundle),
            turns,
        )
        yield Row("chain", ours, against, "ms", 1.03)

    def finished_chains(self, turns):
        ours, against = in_turn(
            lambda: self.said(
                "bench_chain", self.material.to_finish, self.material.output, TITLE, PASSWORD
            ),
            lambda: self.loop(
                self.material.to_finish, CONVERT, PDFTK, self.material.info, PASSWORD,
                environment=self.material.stock_environment(),
            ),
            turns,
        )  # fmt: skip
        yield Row("chain with finishing", ours, against, "ms", 0.25)

    def loop(self, images, *words, environment=None):
        command = [LOOP, images, self.material.output, *words]
        return run(command, environment).wall * 1000

    def convert_launcher(self, turns):
        words = [self.material.pixel_bmp, self.material.output / "pixel.pdf"]
        environment = self._convert_environment()
        ours, against = in_turn(
            lambda: run([self.tool("convert"), *words]).wall * 1000,
            lambda: run([CONVERT, *words], environment).wall * 1000,
            turns,
        )
        yield Row("convert launcher", ours, against, "ms", 3.0, difference=True)

    def _convert_environment(self):
        """By hand what our program sets for a small image."""
        magick = self.contents / "Resources/magick"
        return {
            "PATH": "/usr/bin:/bin",
            "LC_ALL": "C.UTF-8",
            "HOME": str(magick),
            "XDG_CONFIG_HOME": str(magick / "rights"),
            "MAGICK_CONFIGURE_PATH": str(magick / "limits"),
            "MAGICK_TEMPORARY_PATH": "/var/tmp",
            "MAGICK_MEMORY_LIMIT": "3328MiB",
            "MAGICK_MAP_LIMIT": "0",
            "MAGICK_DISK_LIMIT": "32GiB",
            "MAGICK_TIME_LIMIT": "100",
            "MAGICK_THREAD_LIMIT": "1",
        }

    def finished_scan(self, turns):
        ours, against = self._finished(self.material.scan_pdf, turns)
        yield Row("one scan finished", *self._times(ours, against), "ms", 0.15)

    def finished_document(self, turns):
        ours, against = self._finished(self.material.scans_pdf, turns)
        yield Row("100 scans finished, time", *self._times(ours, against), "ms", 0.15)
        peaks = ([one.peak for one in runs] for runs in (ours, against))
        yield Row("100 scans finished, peak memory", *peaks, "MiB", 0.15)

    def _finished(self, pdf, turns):
        def call(program, info):
            security = ["owner_pw", "one", "user_pw", "two"]
            target = self.material.output / "finished.pdf"
            words = [pdf, "update_info", info, "output", target, *security]
            return run([program, *words], together=pdf == self.material.scans_pdf)

        return in_turn(
            lambda: call(self.tool("pdftk"), self.material.own_info),
            lambda: call(PDFTK, self.material.info),
            turns,
        )

    @staticmethod
    def _times(*results):
        return ([one.wall * 1000 for one in runs] for runs in results)

    def lists(self, turns):
        for mode, name, limit in (
            ("add", "add files", 1.5),
            ("add-asked", "  the same, sizes asked for by both", None),
            ("add-sorted", "add files, header sorted", 1.2),
            ("remove", "remove all", 1.5),
            ("move", "5,000 of 10,000 rows to the top", 1.0),
            ("sort", "10,000 rows by name, 2 before 10", 1.0),
        ):
            said = self.said("bench_lists", mode, self.material.files, turns)
            yield Row(name, said["ours"], said["against"], "ms", limit)

    def start_up(self, turns):
        ours = self.program("bench_startup")
        minimal = self.programs / "bench_minimal"
        for words, name, limit in (
            ([], "start-up", 1.3),
            (["text"], "  the same, beside one line of text", None),
        ):
            samples = in_turn(
                lambda: run([ours]).wall * 1000,
                lambda words=words: run([minimal, *words]).wall * 1000,
                turns,
            )
            yield Row(name, *samples, "ms", limit)

    def preview(self, turns):
        said = self.said("bench_preview", "time", self.material.photo, turns)
        yield Row("preview", said["ours"], said["against"], "ms", 1.05)

    def idle(self):
        for image, name in ((self.material.photo, "12"), (self.material.large, "70")):
            said = self.said("bench_preview", "idle", image)
            name = f"idle window, {name}-megapixel JPEG selected"
            yield Row(name, said["ours"], said["against"], "%", 1.0, difference=True)

    def wait(self, turns):
        said = self.said("bench_preview", "wait", self.material.large, turns)
        name = "longest wait, 70-megapixel JPEG selected"
        yield Row(name, said["ours"], said["against"], "ms", 250.0, difference=True)

    def preview_memory(self):
        said = self.said("bench_preview", "memory", self.material.photo)
        name = "preview, 500th firing's memory over the 20th's"
        yield Row(name, said["ours"], said["against"], "MiB", 20.0, difference=True)

    def memory(self, turns):
        ours, against = in_turn(
            lambda: self.said("bench_processes", "ours", self.material.small, 300),
            lambda: self.said("bench_processes", "bare", self.material.small, 300),
            turns,
        )
        yield Row("memory", ours, against, "KiB", 1.2)
