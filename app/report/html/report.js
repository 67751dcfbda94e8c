// Draws the charts of the report from its data. Charts follow the colours of the page, also in print.
"use strict";

const report = JSON.parse(document.getElementById("report").textContent);

// Hues that are told apart by most eyes, on light and on dark paper.
const palette = ["#3b82c4", "#e0872e", "#3f9d5d", "#c9504f", "#8c6bb8", "#8d6a56", "#d06fae", "#7f8a3a", "#2fa3b5"];

const colour = (name) => getComputedStyle(document.documentElement).getPropertyValue(name).trim();
const shown = (value) => Number(value).toPrecision(6).replace(/(\.\d*?)0+(?=e|$)/, "$1").replace(/\.(?=e|$)/, "");

function line(label, points, options) {
    return {
        label,
        data: points,
        parsing: false,
        borderWidth: 1.5,
        pointRadius: 0,
        pointHitRadius: 8,
        pointHoverRadius: 4,
        ...options,
    };
}

// Points without a line; the legend shows them as a row of dots.
function dots(label, points) {
    return line(label, points, {
        showLine: false,
        pointRadius: 2,
        pointBorderWidth: 0,
        pointBackgroundColor: () => colour("--quiet"),
        borderColor: () => colour("--quiet"),
        backgroundColor: "transparent",
        borderWidth: 4,
        borderDash: [0, 12.5],
        borderCapStyle: "round",
    });
}

// Upright dashed lines with a name at the top, at the averages of the composite.
const marks = {
    id: "marks",
    afterDatasetsDraw(chart, _args, options) {
        const { ctx, chartArea, scales } = chart;
        ctx.save();
        ctx.strokeStyle = colour("--quiet");
        ctx.font = "12px system-ui, sans-serif";
        ctx.setLineDash([5, 4]);
        for (const { name, value, row } of options.at ?? []) {
            const x = scales.x.getPixelForValue(value);
            if (!(x >= chartArea.left && x <= chartArea.right)) continue;
            ctx.beginPath();
            ctx.moveTo(x, chartArea.top);
            ctx.lineTo(x, chartArea.bottom);
            ctx.stroke();
            const text = `${name} ${shown(value)}`;
            const width = ctx.measureText(text).width + 6;
            const left = x + 2 + width > chartArea.right ? x - 2 - width : x + 2;
            const top = chartArea.top + 4 + 18 * row;
            ctx.globalAlpha = 0.7;
            ctx.fillStyle = colour("--paper");
            ctx.fillRect(left, top, width, 16);
            ctx.globalAlpha = 1;
            ctx.fillStyle = colour("--ink");
            ctx.fillText(text, left + 3, top + 12);
        }
        ctx.restore();
    },
};

const axis = (text, options) => ({
    title: { display: true, text, color: () => colour("--ink") },
    ticks: { color: () => colour("--quiet") },
    grid: { color: () => colour("--line") },
    ...options,
});

// Powers of ten alone, short enough for a narrow page.
const superscript = (digits) => digits.replace(/./g, (c) => "⁰¹²³⁴⁵⁶⁷⁸⁹"[c] ?? "⁻");
const decades = (value) => {
    const power = Math.log10(value);
    const whole = Math.round(power);
    return Math.abs(power - whole) < 1e-9 ? `10${superscript(String(whole))}` : null;
};

function chart(canvas, datasets, scales, marked, pointerTitle) {
    return new Chart(canvas, {
        type: "line",
        data: { datasets },
        plugins: [marks],
        options: {
            animation: false,
            maintainAspectRatio: false,
            interaction: { mode: "nearest", axis: "x", intersect: false },
            scales,
            plugins: {
                marks: { at: marked },
                legend: { labels: { color: () => colour("--ink"), boxHeight: 1, boxWidth: 24 } },
                tooltip: {
                    callbacks: {
                        title: (items) => (items.length ? pointerTitle(items[0].parsed.x) : ""),
                        label: (item) => `${item.dataset.label}: ${shown(item.parsed.y)}`,
                    },
                },
            },
        },
    });
}

// The two forms of the curves of a distribution: as the case asks, over chain length, and as chromatograms show
// them, over molecular weight.
function lengthForm(distribution) {
    return {
        x: "chain_length",
        key: (name) => name,
        axes: ["Chain length, segments", distribution.form === "gpc" ? "dw/d ln M" : "Weight fraction per segment"],
        measured: "overlay",
        marks: { Pn: "pn", Pw: "pw" },
        pointer: (x) => `Chain length ${shown(x)}`,
    };
}

const weightForm = {
    x: "molecular_weight",
    key: (name) => (name === "composite" ? "dw_dlog10m" : `dw_dlog10m ${name}`),
    axes: ["Molecular weight, g/mol", "dw/dlog10 M"],
    measured: "measured",
    marks: { Mn: "mn", Mw: "mw", Mz: "mz" },
    pointer: (x) => `${shown(x)} g/mol`,
};

function distributionForm(canvas, distribution, form) {
    const rows = distribution.distribution_curves;
    const names = distribution.distribution_averages.map((row) => row.curve);
    const curve = (key) => rows.map((row) => ({ x: row[form.x], y: row[key] }));
    const datasets = names.map((name, i) =>
        line(name, curve(form.key(name)), i === 0
            ? { borderColor: () => colour("--ink"), borderWidth: 2.5 }
            : { borderColor: palette[(i - 1) % palette.length], backgroundColor: palette[(i - 1) % palette.length] }));
    if (distribution.gpc_curve)
        datasets.push(dots("measured", distribution.gpc_curve.map((row) => ({ x: row[form.x], y: row[form.measured] }))));
    datasets.push(line("cumulative", curve("cumulative"),
        { yAxisID: "cumulative", borderColor: () => colour("--quiet"), borderDash: [2, 3] }));

    const composite = distribution.distribution_averages[0];
    const scales = {
        x: axis(form.axes[0], { type: "logarithmic", min: rows[0][form.x],
            max: rows[rows.length - 1][form.x], ticks: { color: () => colour("--quiet"), callback: decades,
                maxRotation: 0, autoSkip: false } }),
        y: axis(form.axes[1], { beginAtZero: true }),
        cumulative: axis("Cumulative mass fraction", { position: "right", min: 0, max: 1, grid: { display: false } }),
    };
    const marked = Object.entries(form.marks).map(([name, key], row) => ({ name, value: composite[key], row }));
    return chart(canvas, datasets, scales, marked, form.pointer);
}

// The curves of one distribution, with a button that changes their form where there is a segment weight.
function distributionChart(canvas, distribution) {
    const first = distributionForm(canvas, distribution, lengthForm(distribution));
    if (!("dw_dlog10m" in distribution.distribution_curves[0])) return first;
    const button = document.createElement("button");
    const caption = (isWeight) => (isWeight ? "Show over chain length" : "Show dw/dlog10 M over M");
    let isWeight = false;
    let drawn = first;
    button.type = "button";
    button.textContent = caption(isWeight);
    button.addEventListener("click", () => {
        isWeight = !isWeight;
        const replaced = drawn;
        drawn.destroy();
        drawn = distributionForm(canvas, distribution, isWeight ? weightForm : lengthForm(distribution));
        charts[charts.indexOf(replaced)] = drawn;
        button.textContent = caption(isWeight);
    });
    canvas.parentElement.before(button);
    return first;
}

// The measured points, the sum of the sites and each site.
function fitChart(canvas, fit) {
    const rows = fit.fit_curves;
    const curve = (key) => rows.map((row) => ({ x: row.molecular_weight, y: row[key] }));
    const datasets = fit.fit_sites.map((row, i) => line(`site ${row.site}`, curve(`site_${row.site}`),
        { borderColor: palette[i % palette.length], backgroundColor: palette[i % palette.length] }));
    datasets.unshift(line("sum of the sites", curve("fitted"), { borderColor: () => colour("--ink"), borderWidth: 2.5 }));
    datasets.push(dots("measured", curve("measured")));
    const scales = {
        x: axis("Molecular weight, g/mol", { type: "logarithmic", min: rows[0].molecular_weight,
            max: rows[rows.length - 1].molecular_weight, ticks: { color: () => colour("--quiet"), callback: decades,
                maxRotation: 0, autoSkip: false } }),
        y: axis("dw/dlog10 M", { beginAtZero: true }),
    };
    const average = fit.fit_averages.find((row) => row.curve === "fitted");
    const marked = ["mn", "mw"].map((key, row) => ({ name: key === "mn" ? "Mn" : "Mw", value: average[key], row }));
    return chart(canvas, datasets, scales, marked, (x) => `${shown(x)} g/mol`);
}

// Every pair with data whose parameter is not 0 throughout; both orders of it where they differ.
function parameterChart(canvas, set) {
    const rows = set.binary_parameters;
    const names = Object.keys(rows[0]).filter((key) => key !== "temperature" && key !== "component");
    const curve = (first, second) => rows.filter((row) => row.component === first)
        .map((row) => ({ x: row.temperature, y: row[second] }));
    const datasets = [];
    const add = (first, second, borderDash) => {
        const points = curve(first, second);
        if (points.every((point) => point.y === null || point.y === 0)) return;
        const hue = palette[datasets.length % palette.length];
        datasets.push(line(`${first} – ${second}`, points, { borderColor: hue, backgroundColor: hue, borderDash }));
    };
    names.forEach((first, i) => names.slice(i + 1).forEach((second) => {
        add(first, second, []);
        const mirror = curve(second, first);
        if (curve(first, second).some((point, k) => point.y !== mirror[k].y)) add(second, first, [6, 4]);
    }));
    const unit = report.units.binary_parameters[rows[0].component];
    const scales = {
        x: axis("Temperature, K", { type: "linear" }),
        y: axis(unit && unit !== "1" ? `Parameter, ${unit}` : "Parameter"),
    };
    return chart(canvas, datasets, scales, [], (x) => `${shown(x)} K`);
}

const makers = {
    distribution: [report.distributions, distributionChart],
    parameter: [report.parameters, parameterChart],
    fit: [report.fits, fitChart],
};
const charts = [];
for (const section of document.querySelectorAll("section[data-kind]")) {
    const canvas = section.querySelector("canvas");
    if (!canvas) continue;
    const [all, make] = makers[section.dataset.kind];
    charts.push(make(canvas, all.find((entry) => entry.name === section.dataset.name)));
}

const redraw = () => charts.forEach((drawn) => {
    drawn.resize();
    drawn.update();
});
matchMedia("(prefers-color-scheme: dark)").addEventListener("change", redraw);
matchMedia("print").addEventListener("change", redraw);
addEventListener("beforeprint", redraw);
addEventListener("afterprint", redraw);
