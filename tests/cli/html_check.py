"""Opens HTML reports in headless Chromium: no console error, charts drawn, table numbers equal to the JSON.

    html_check.py PROGRAM CASE… [--screenshots DIR]

Exits with 77, which CTest shows as skipped, where there is no Chromium.
"""

import argparse
import html.parser
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77

# Run in the page after its own scripts: what the page alone can tell goes into an attribute of its root.
PROBE = """
<script>
addEventListener("error", (event) => document.documentElement.setAttribute("data-error", event.message));
addEventListener("load", () => setTimeout(() => {
    const blank = (canvas) => {
        const pixels = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data;
        return canvas.width === 0 || !pixels.some((value, i) => i % 4 === 3 && value > 0);
    };
    const canvases = [...document.querySelectorAll("canvas")];
    document.documentElement.setAttribute("data-blank", canvases.filter(blank).length);
    document.documentElement.setAttribute("data-legends", Object.values(Chart.instances).map((chart) => {
        const before = chart.isDatasetVisible(0);
        const box = chart.legend.legendHitBoxes[0];
        chart.options.plugins.legend.onClick.call(chart.legend, {}, chart.legend.legendItems[0], chart.legend);
        return box && before && !chart.isDatasetVisible(0);
    }).join());
}, 500));
</script>
"""


class Tables(html.parser.HTMLParser):
    """Rows of numbers and texts by section and table, and the attributes of the root."""

    def __init__(self):
        super().__init__()
        self.root, self.rows, self.canvases = {}, {}, 0
        self.section = self.table = self.cell = None

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        if tag == "html":
            self.root = found
        elif tag == "section":
            self.section = (found.get("data-kind"), found.get("data-name"))
        elif tag == "canvas":
            self.canvases += 1
        elif tag == "table":
            self.table = self.rows.setdefault((*self.section, found["data-table"]), {"keys": [], "rows": []})
        elif tag == "th":
            self.table["keys"].append(found["data-key"])
        elif tag == "tr":
            self.table["rows"].append([])
        elif tag == "td":
            value = found.get("data-value")
            self.cell = None if value is not None else ""
            self.table["rows"][-1].append(float(value) if value is not None else "")

    def handle_data(self, data):
        if self.cell is not None:
            self.cell += data

    def handle_endtag(self, tag):
        if tag == "td" and self.cell is not None:
            self.table["rows"][-1][-1] = self.cell
            self.cell = None


def chromium():
    for name in ("chromium", "chromium-browser", "google-chrome"):
        if path := shutil.which(name):
            return path
    return None


def browse(browser, page, *options):
    return subprocess.run(
        [browser, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--enable-logging=stderr",
         "--log-level=0", "--virtual-time-budget=5000", *options, page.as_uri()],
        capture_output=True, text=True, timeout=300)


def faults_of(page, report, browser):
    probed = page.with_suffix(".probe.html")
    probed.write_text(page.read_text().replace("<script type=", PROBE + "<script type=", 1))
    seen = browse(browser, probed, "--dump-dom")
    tables = Tables()
    tables.feed(seen.stdout)
    faults = [line for line in seen.stderr.splitlines() if "CONSOLE" in line]
    if "data-error" in tables.root:
        faults.append(tables.root["data-error"])
    if tables.root.get("data-blank") != "0":
        faults.append(f"blank canvases: {tables.root.get('data-blank')}")
    if any(switched != "true" for switched in tables.root.get("data-legends", "").split(",")) and tables.canvases:
        faults.append(f"legends that switch nothing: {tables.root.get('data-legends')}")
    if "http" in page.read_text().replace("https://www.chartjs.org", "").split("<script>")[0]:
        faults.append("an outside link")
    return faults + differences(tables.rows, report), tables.canvases, len(tables.rows)


def differences(shown, report):
    faults = []
    for kind in ("stream", "reactor", "distribution", "parameter"):
        for section in report.get(kind + "s", []):
            for key, rows in section.items():
                if not isinstance(rows, list) or not rows or key in ("distribution_curves", "gpc_curve"):
                    continue
                table = shown.get((kind, section["name"], key))
                if table is None:
                    faults.append(f"{kind} {section['name']}: no table {key}")
                    continue
                seen = [dict(zip(table["keys"], row)) for row in table["rows"] if row]
                if seen != rows:
                    faults.append(f"{kind} {section['name']}: {key} differs from the JSON")
    return faults


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("cases", nargs="+")
    parser.add_argument("--screenshots", type=pathlib.Path)
    options = parser.parse_args()
    browser = chromium()
    if browser is None:
        print("skipped: no Chromium on this machine")
        return SKIPPED
    status = 0
    with tempfile.TemporaryDirectory() as directory:
        for case in options.cases:
            # Status 1: a case with something to report, which the page reports as well.
            ran = subprocess.run([options.program, "run", case, "--out", directory], capture_output=True, text=True)
            if ran.returncode > 1:
                sys.exit(f"{case}: {ran.stderr}")
            stem = pathlib.Path(directory) / pathlib.Path(case).stem
            page = stem.with_name(stem.name + ".html")
            report = json.loads(stem.with_name(stem.name + ".json").read_text())
            faults, canvases, tables = faults_of(page, report, browser)
            expected = len(report.get("distributions", [])) + sum(
                len({row["temperature"] for row in entry["binary_parameters"]}) > 1
                for entry in report.get("parameters", []))
            if canvases != expected:
                faults.append(f"{canvases} charts, expected {expected}")
            print(f"{case}: {tables} tables, {canvases} charts, {'; '.join(faults) or 'sound'}")
            status = status or bool(faults)
            if options.screenshots:
                options.screenshots.mkdir(parents=True, exist_ok=True)
                shot = options.screenshots.resolve() / (stem.name + ".png")
                browse(browser, page, f"--screenshot={shot}", "--window-size=1100,2600")
    return int(status)


if __name__ == "__main__":
    sys.exit(main())
