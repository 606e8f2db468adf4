#!/usr/bin/env python3
"""Complex FFT benchmark report: reads the JSON written by

    kels_bench_fft --benchmark_repetitions=3 --benchmark_report_aggregates_only=true \
        --benchmark_out=fft.json --benchmark_out_format=json

prints, per precision and size, the median time ratio kels/FFTW and both
GFLOP/s figures (5 N log2 N / t), the geometric mean of the ratios, and
writes an SVG chart of GFLOP/s against N (docs/fft_gflops.svg by default).

Usage: fft_chart.py fft.json [out.svg]
"""
import json
import math
import os
import sys


def load(path):
    with open(path) as f:
        data = json.load(f)
    rows = {}
    for b in data["benchmarks"]:
        if b.get("aggregate_name") not in (None, "median"):
            continue
        name = b.get("run_name", b["name"])  # e.g. FFT32fc_Ratio/10
        if not name.startswith("FFT") or "_Ratio/" not in name:
            continue  # e.g. the MulPerm comparison: reported, not charted
        prec, order = name.split("_Ratio/")
        rows.setdefault(prec, {})[int(order)] = b
    return rows


def report(rows):
    for prec, by_order in sorted(rows.items()):
        print(f"{prec}: N, ratio kels/FFTW, kels GFLOP/s, FFTW GFLOP/s")
        ratios = []
        for order in sorted(by_order):
            b = by_order[order]
            r = b.get("ratio", float("nan"))
            ratios.append(r)
            print(f"  2^{order:<2} {r:6.3f} {b['kels_gflops']:7.2f} {b.get('fftw_gflops', float('nan')):7.2f}")
        good = [r for r in ratios if r == r and r > 0]
        if good:
            gm = math.exp(sum(math.log(r) for r in good) / len(good))
            print(f"  geometric mean ratio {gm:.3f}, worst {max(good):.3f}")


def svg(rows, out):
    w, h, ml, mb, mt, mr = 760, 420, 60, 50, 30, 190
    orders = sorted({o for r in rows.values() for o in r})
    ymax = max(max(b.get("kels_gflops", 0), b.get("fftw_gflops", 0))
               for r in rows.values() for b in r.values())
    ymax = math.ceil(ymax / 5) * 5 or 5
    x = lambda o: ml + (o - orders[0]) * (w - ml - mr) / max(1, orders[-1] - orders[0])
    y = lambda v: h - mb - v * (h - mb - mt) / ymax
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
             f'font-family="sans-serif" font-size="12">',
             f'<rect width="{w}" height="{h}" fill="white"/>',
             f'<text x="{w / 2 - 120}" y="18">FFT, out of place, one thread</text>']
    for v in range(0, int(ymax) + 1, 5):
        parts.append(f'<line x1="{ml}" y1="{y(v)}" x2="{w - mr}" y2="{y(v)}" stroke="#ddd"/>')
        parts.append(f'<text x="{ml - 30}" y="{y(v) + 4}">{v}</text>')
    for o in orders:
        parts.append(f'<text x="{x(o) - 10}" y="{h - mb + 18}">2^{o}</text>')
    parts.append(f'<text x="{w / 2 - 20}" y="{h - 10}">N</text>')
    parts.append(f'<text x="8" y="{mt - 8}">GFLOP/s (5 N log2 N / t complex, 2.5 N log2 N / t real)</text>')
    palette = [("#d62728", "#ff9896"), ("#1f77b4", "#aec7e8"), ("#2ca02c", "#98df8a")]
    legend_y = mt + 10
    for idx, (prec, by_order) in enumerate(sorted(rows.items())):
        for lib in ("kels", "fftw"):
            key = f"{lib}_gflops"
            pts = [(x(o), y(b[key])) for o, b in sorted(by_order.items()) if key in b]
            if not pts:
                continue
            c = palette[idx % len(palette)][0 if lib == "kels" else 1]
            dash = ' stroke-dasharray="5,3"' if lib == "fftw" else ""
            parts.append('<polyline fill="none" stroke-width="2" stroke="%s"%s points="%s"/>'
                         % (c, dash, " ".join(f"{a:.1f},{b:.1f}" for a, b in pts)))
            label = f"{prec[3:].replace('_', ' ')} {'kels' if lib == 'kels' else 'FFTW'}"
            parts.append(f'<line x1="{w - mr + 10}" y1="{legend_y}" x2="{w - mr + 40}" '
                         f'y2="{legend_y}" stroke="{c}" stroke-width="2"{dash}/>')
            parts.append(f'<text x="{w - mr + 45}" y="{legend_y + 4}">{label}</text>')
            legend_y += 18
    parts.append("</svg>")
    with open(out, "w") as f:
        f.write("\n".join(parts) + "\n")


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    rows = load(sys.argv[1])
    report(rows)
    out = sys.argv[2] if len(sys.argv) > 2 else os.path.join(os.path.dirname(__file__), "fft_gflops.svg")
    svg(rows, out)
    print(f"chart written to {out}")


if __name__ == "__main__":
    main()
