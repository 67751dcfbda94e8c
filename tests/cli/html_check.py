"""Opens HTML reports in headless Chromium: no console error, charts drawn, table numbers equal to the JSON.

    html_check.py PROGRAM CASE…

Exits with 77, which CTest shows as skipped, where there is no Chromium.
"""

import html
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# Run in the page after its own scripts: what the page shows goes into an attribute of its root.
PROBE = """
<script>
const seen = { errors: [] };
addEventListener("error", (event) => seen.errors.push(event.message));
addEventListener("load", () => setTimeout(() => {
    const blank = (canvas) => {
        const pixels = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data;
        return canvas.width === 0 || !pixels.some((value, i) => i % 4 === 3 && value > 0);
    };
    const canvases = [...document.querySelectorAll("canvas")];
    seen.charts = canvases.length;
    // A chart of the other form is drawn over another axis.
    const axes = () => Object.values(Chart.instances).map((chart) => chart.options.scales.x.title.text).join();
    const buttons = [...document.querySelectorAll("main button")];
    seen.buttons = buttons.length;
    seen.switched = buttons.filter((button) => {
        const before = axes();
        button.click();
        return axes() !== before;
    }).length;
    seen.blank = canvases.filter(blank).length;
    seen.legends = Object.values(Chart.instances).filter((chart) => {
        const before = chart.isDatasetVisible(0);
        const box = chart.legend.legendHitBoxes[0];
        chart.options.plugins.legend.onClick.call(chart.legend, {}, chart.legend.legendItems[0], chart.legend);
        return box && before && !chart.isDatasetVisible(0);
    }).length;
    seen.tables = [...document.querySelectorAll("table")].map((table) => {
        const keys = [...table.tHead.rows[0].cells].map((head) => head.dataset.key);
        const value = (cell) => !("value" in cell.dataset) ? cell.textContent
            : cell.dataset.value === "" ? null : Number(cell.dataset.value);
        const rows = [...table.tBodies[0].rows].map((row) =>
            Object.fromEntries([...row.cells].map((cell, i) => [keys[i], value(cell)])));
        const section = table.closest("section").dataset;
        return { place: [section.kind, section.name, table.dataset.table].join(" "), rows };
    });
    document.documentElement.setAttribute("data-seen", JSON.stringify(seen));
}, 500));
</script>
"""


def faults_of(page, report, browser):
    probed = page.with_suffix(".probe.html")
    probed.write_text(page.read_text().replace("<script type=", PROBE + "<script type=", 1))
    browsed = subprocess.run(
        [browser, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--enable-logging=stderr",
         "--log-level=0", "--virtual-time-budget=5000", "--dump-dom", probed.as_uri()],
        capture_output=True, text=True, timeout=300)
    seen = json.loads(html.unescape(re.search('data-seen="([^"]*)"', browsed.stdout)[1]))
    faults = seen["errors"] + [line for line in browsed.stderr.splitlines() if "CONSOLE" in line]
    charts = len(report.get("distributions", [])) + len(report.get("fits", [])) + sum(
        len({row["temperature"] for row in entry["binary_parameters"]}) > 1 for entry in report.get("parameters", []))
    weighed = sum("dw_dlog10m" in entry["distribution_curves"][0] for entry in report.get("distributions", []))
    for what, count, expected in (("buttons", seen["buttons"], weighed), ("forms that switch", seen["switched"], weighed),
                                  ("charts", seen["charts"], charts), ("blank charts", seen["blank"], 0),
                                  ("legends that switch", seen["legends"], charts)):
        if count != expected:
            faults.append(f"{count} {what}, expected {expected}")
    if "http" in page.read_text().replace("https://www.chartjs.org", "").split("<script>")[0]:
        faults.append("an outside link")
    shown = {table["place"]: table["rows"] for table in seen["tables"]}
    for kind in ("stream", "reactor", "distribution", "parameter", "fit"):
        for section in report.get(kind + "s", []):
            for key, rows in section.items():
                if isinstance(rows, list) and rows and key not in ("distribution_curves", "gpc_curve", "fit_curves"):
                    place = f"{kind} {section['name']} {key}"
                    if shown.get(place) != rows:
                        faults.append(f"{place} is missing or differs from the JSON")
    return faults, f"{len(shown)} tables, {charts} charts"


# Each case, the commands that make a page of it, and the ending of the page. A case with a curve is fitted too.
def pages(cases):
    for case in cases:
        curve = pathlib.Path(case).with_suffix("") / "curve.csv"
        yield case, ["run", case], ".html"
        if curve.exists():
            yield case, ["fit", case, "--gpc", str(curve), "--sites", "3"], ".fit.html"


def main():
    program, *cases = sys.argv[1:]
    browser = next(filter(None, map(shutil.which, ("chromium", "chromium-browser", "google-chrome"))), None)
    if browser is None:
        print("skipped: no Chromium on this machine")
        return 77
    status = 0
    with tempfile.TemporaryDirectory() as directory:
        for case, command, ending in pages(cases):
            # Status 1: a case with something to report, which the page reports as well.
            ran = subprocess.run([program, *command, "--out", directory], capture_output=True, text=True)
            if ran.returncode > 1:
                sys.exit(f"{case}: {ran.stderr}")
            page = pathlib.Path(directory, pathlib.Path(case).stem + ending)
            report = json.loads(page.with_suffix(".json").read_text())
            faults, contents = faults_of(page, report, browser)
            print(f"{' '.join(command)}: {contents}, {'; '.join(faults) or 'sound'}")
            status = status or bool(faults)
    return int(status)


if __name__ == "__main__":
    sys.exit(main())
