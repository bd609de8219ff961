#!/usr/bin/env python3
"""Checks the Matrix page's products, inverses, determinants and powers against numpy.

    matrix_vs_numpy.py SONALYX_CLI

Random matrices (fixed seed) are typed into `sonalyx-cli matrix` in one session;
every result must agree with numpy to 10 significant digits, the precision the
page writes. Singular matrices must be refused. Any disagreement is listed and
the exit status is 1.
"""

import subprocess
import sys

try:
    import numpy as np
except ImportError:
    sys.exit("matrix_vs_numpy: numpy is missing (Debian package python3-numpy)")

SEED = 20240611
SIGNIFICANT = 10
# Entries far smaller than the matrix's largest carry rounding noise of the
# largest, in numpy as here: they are compared against that scale.
NOISE_FLOOR = 1e-12


def text_of(matrix):
    rows = (",".join(repr(float(v)) for v in row) for row in matrix)
    return "[" + ";".join(rows) + "]"


def value_of(text):
    if not text.startswith("["):
        return np.array([[float(text)]])
    rows = text[1:-1].split(";")
    return np.array([[float(v) for v in row.split(",")] for row in rows])


def well_conditioned(rng, n, m=None):
    while True:
        a = np.round(rng.uniform(-10.0, 10.0, size=(n, m or n)), rng.integers(0, 6))
        if m is not None or np.linalg.cond(a) < 1e4:
            return a


def singular(rng, n):
    a = np.round(rng.uniform(-10.0, 10.0, size=(n, n)), 3)
    a[-1] = a[0] * 2.0 - a[1] if n > 2 else a[0] * 3.0
    return a


def cases(rng):
    """(expression, expected value or None for a refusal)"""
    out = []
    for _ in range(30):
        n, k, m = (int(v) for v in rng.integers(1, 9, size=3))
        a, b = well_conditioned(rng, n, k), well_conditioned(rng, k, m)
        out.append((f"{text_of(a)}*{text_of(b)}", a @ b))
    for n in list(range(1, 9)) * 3 + [20, 40]:
        a = well_conditioned(rng, n)
        out.append((f"inv({text_of(a)})", np.linalg.inv(a)))
        out.append((f"det({text_of(a)})", np.array([[np.linalg.det(a)]])))
    for _ in range(20):
        n = int(rng.integers(1, 7))
        p = int(rng.choice([-3, -2, -1, 0, 2, 3, 5, 8]))
        a = well_conditioned(rng, n) / 5.0
        out.append((f"{text_of(a)}^{p}", np.linalg.matrix_power(a, p)))
    for n in (2, 3, 5, 8):
        a = singular(rng, n)
        out.append((f"inv({text_of(a)})", None))
        out.append((f"det({text_of(a)})", np.zeros((1, 1))))
    return out


def run(cli, expressions):
    completed = subprocess.run([cli, "matrix", *expressions], capture_output=True, text=True, check=False)
    if completed.returncode != 0:
        sys.exit(f"matrix_vs_numpy: sonalyx-cli failed ({completed.returncode}): {completed.stderr}")
    shown = [line[len("edit: "):] for line in completed.stdout.splitlines() if line.startswith("edit: ")]
    if len(shown) != len(expressions):
        sys.exit(f"matrix_vs_numpy: {len(expressions)} lines typed, {len(shown)} results shown")
    return shown


def disagreement(actual, expected):
    if actual.shape != expected.shape:
        return f"shape {actual.shape}, numpy {expected.shape}"
    scale = np.max(np.abs(expected))
    allowed = 0.5 * 10.0 ** (1 - SIGNIFICANT) * np.abs(expected) + NOISE_FLOOR * scale
    worst = np.max(np.abs(actual - expected) - allowed)
    return None if worst <= 0.0 else f"off by up to {worst:.3g} beyond {SIGNIFICANT} digits"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    rng = np.random.default_rng(SEED)
    checks = cases(rng)
    shown = run(sys.argv[1], [expression for expression, _ in checks])
    failures = 0
    for (expression, expected), text in zip(checks, shown):
        if expected is None:
            problem = None if text == "Error: Invalid matrix expression." else "a singular matrix was inverted"
        elif text.startswith("Error"):
            problem = "refused"
        else:
            problem = disagreement(value_of(text), expected)
        if problem:
            failures += 1
            print(f"DISAGREES: {expression}\n  sonalyx: {text}\n  numpy:   {expected}\n  {problem}")
    print(f"matrix_vs_numpy: {len(checks)} results, {failures} disagreements")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
