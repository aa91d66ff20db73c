#!/usr/bin/env python3
"""The numbers of src/math/*.h: minimax polynomials, and the logarithm's tables of reciprocals. Needs mpmath.

usage: minimax.py exp | ln | tables | half | arctan | sin | sine

A polynomial p of degree n is fitted by Remez exchange so that the largest |weight(x) * (p(x) - f(x))| on the interval is least;
its coefficients are then rounded to the lane's type, lowest power first. "error" is what remains of that largest value after
rounding, times the 2^24 or 2^53 of the type: a unit is half an ULP of a result just above 1.
"""
import random
import struct
import sys

from mpmath import mp, mpf, log, exp, atan, atanh, log1p, expm1, cos, sin, pi, matrix, lu_solve, polyval, nint, sqrt

mp.dps = 60
PLACES = {'float': 24, 'double': 53}


def rounded(x, lane):
    if lane == 'double':
        return float(x)
    return struct.unpack('f', struct.pack('f', float(x)))[0]


def extrema(error, low, high, count):
    points = [low + (high - low) * (1 - cos(pi * i / count)) / 2 for i in range(count + 1)]
    values = [error(x) for x in points]
    best = []
    for x, v in zip(points, values):
        if best and (v > 0) == (best[-1][1] > 0):
            if abs(v) > abs(best[-1][1]):
                best[-1] = (x, v)
        else:
            best.append((x, v))
    return best


def remez(f, weight, degree, low, high):
    n = degree + 2
    nodes = [low + (high - low) * (1 - cos(pi * (2 * i + 1) / (2 * n))) / 2 for i in range(n)]
    for _ in range(12):
        a, b = matrix(n, n), matrix(n, 1)
        for i, x in enumerate(nodes):
            for k in range(degree + 1):
                a[i, k] = x**k
            a[i, degree + 1] = (-1)**i / weight(x)
            b[i] = f(x)
        solution = lu_solve(a, b)
        p = [solution[k] for k in range(degree + 1)]
        best = extrema(lambda x: weight(x) * (polyval(p[::-1], x) - f(x)), low, high, 40 * n)
        while len(best) > n:
            best.pop(0 if abs(best[0][1]) < abs(best[-1][1]) else -1)
        if len(best) < n:
            break
        nodes = [x for x, _ in best]
    return p


def fit(name, lane, f, weight, degree, low, high):
    low, high = mpf(low), mpf(high)
    c = [rounded(v, lane) for v in remez(f, weight, degree, low, high)]
    worst = max(abs(v) for _, v in extrema(lambda x: weight(x) * (polyval([mpf(v) for v in c][::-1], x) - f(x)), low, high, 2000))
    print(f'{name} {lane}: degree {degree} on [{float(low):.7g}, {float(high):.7g}], error {float(worst * 2**PLACES[lane]):.4f}')
    print('  ' + ', '.join(v.hex() + ('F' if lane == 'float' else '') for v in c))


def series(x, f, terms):
    """f away from 0; near it, where f cancels, the sum of terms(k) x^k."""
    return f(x) if abs(x) > mpf(10)**-8 else sum(terms(k) * x**k for k in range(6))


def fit_exp():
    def q(r):  # e^r = 1 + r + r^2 q(r)
        return series(r, lambda r: (expm1(r) - r) / r**2, lambda k: 1 / mp.factorial(k + 2))
    for lane, steps, degree in (('float', 16, 1), ('double', 16, 4), ('float', 1, 4), ('double', 1, 9)):
        reach = log(2) / 2 / steps * mpf('1.001')
        fit(f'exp, {steps} steps', lane, q, lambda r: r**2 + mpf(10)**-30, degree, -reach, reach)
    print('2^(i/16):')
    for lane in PLACES:
        power = [2**(mpf(i) / 16) for i in range(16)]
        high = [rounded(p, lane) for p in power]
        print('  high ' + ', '.join(v.hex() for v in high))
        print('  low/high ' + ', '.join(rounded(p / mpf(h) - 1, lane).hex() for p, h in zip(power, high)))


def fit_ln():
    def q(r):  # ln(1+r) = r + r^2 q(r)
        return series(r, lambda r: (log1p(r) - r) / r**2, lambda k: mpf((-1)**(k + 1)) / (k + 2))
    for lane, entries, at_one, degree in (('float', 32, 2, 3), ('double', 16, 1, 8), ('float', 8, 1, 4)):
        fit(f'ln, {entries} entries', lane, q, lambda r: abs(r) + mpf(10)**-30, degree, -max(mpf(at_one) / 2, mpf('0.63')) / entries, mpf(at_one) / entries)
    def p(z):  # ln((1+s)/(1-s)) = 2s + s z p(z), z = s^2
        return series(z, lambda z: (2 * atanh(sqrt(z)) / sqrt(z) - 2) / z, lambda k: mpf(2) / (2 * k + 3))
    reach = (sqrt(2) - 1) / (sqrt(2) + 1)
    for lane, degree in (('float', 3), ('double', 6)):
        fit('ln by s', lane, p, lambda z: z + mpf(10)**-30, degree, 0, reach**2 * mpf('1.001'))


FIXED = 140  # places of the fixed-point numbers below


def near_multiple(middle, reach, places, lane, tries):
    """Of `tries` numbers within reach of the middle the one whose logarithm is nearest to a multiple of 2^-places."""
    middle = rounded(middle, lane)
    unit = mpf(2)**(int(mp.floor(log(middle, 2))) + 1 - PLACES[lane])
    log_middle, ratio = int(log(mpf(middle)) * 2**FIXED), int(unit / mpf(middle) * 2**FIXED)
    half, mask = 1 << (FIXED - places - 1), (1 << (FIXED - places)) - 1
    best = None
    for _ in range(tries):
        steps = random.randint(-int(reach / unit), int(reach / unit))
        d, power, value = steps * ratio, 1 << FIXED, log_middle
        for k in range(1, 14):
            power = power * d >> FIXED
            value += power // k if k % 2 else -(power // k)
        off = abs(((value + half) & mask) - half)
        if best is None or off < best[0]:
            best = (off, steps)
    c = mpf(middle) + best[1] * unit
    assert rounded(c, lane) == c
    return float(c), float(nint(-log(c) * 2**places) / 2**places)


def tables():
    """For each interval of the mantissa, 1 for those next to 1, a reciprocal whose logarithm is next to a multiple of 2^-places."""
    random.seed(1)
    for lane, entries, at_one, places, tries in (('float', 32, 2, 16, 150000), ('double', 16, 1, 41, 200000), ('float', 8, 1, 16, 150000)):
        reciprocals, logarithms, worst = [], [], 0
        for i in range(entries):
            scale = 1 if i < entries // 2 else 2
            low, high = (1 + mpf(i) / entries) / scale, (1 + mpf(i + 1) / entries) / scale
            c, logarithm = 1.0, 0.0
            if min(i, entries - 1 - i) >= at_one:
                # Where the logarithm is smallest r must be smaller still: there the middle lies near 1.
                near_one = mpf(1) / 4 if i == at_one else mpf(3) / 4 if i == entries - 1 - at_one else mpf(1) / 2
                c, logarithm = near_multiple(1 / (low + (high - low) * near_one), (1 / low - 1 / high) / 8, places, lane, tries)
                unit = mpf(2)**(mp.floor(log(abs(logarithm), 2)) + 1 - PLACES[lane])
                worst = max(worst, abs(-log(mpf(c)) - logarithm) / unit)
            reciprocals.append(c)
            logarithms.append(logarithm)
        print(f'{lane}: logarithms in units of 2^-{places}, off by at most {float(worst):.3g} ULP')
        print('  ' + ', '.join(v.hex() for v in reciprocals))
        print('  ' + ', '.join(v.hex() for v in logarithms))
        high = mp.floor(log(2) * 2**places) / 2**places  # the rest must be positive, for infinite exponents
        print('  ln 2: ' + float(high).hex() + ' + ' + rounded(log(2) - high, lane).hex())


def half_ln():
    """Half the logarithm: intervals around 1, 1 + 1/entries and so on, for each half of a reciprocal whose logarithm is next to a float."""
    random.seed(1)
    def q(r):  # ln(1 + 2 r) / 2 = r + r^2 q(r)
        return series(r, lambda r: (log1p(2 * r) / 2 - r) / r**2, lambda k: mpf((-1)**(k + 1)) * 2**(k + 1) / (k + 2))
    for entries, degree in ((32, 2), (8, 4)):
        fit(f'half, {entries} entries', 'float', q, lambda r: abs(r) + mpf(10)**-30, degree, -mpf('1.07') / 4 / entries, mpf('1.07') / 4 / entries)
        chosen, worst = [(1.0, 0.0)], 0
        for i in range(1, entries):
            low, high = 1 + (mpf(i) - 0.5) / entries, 1 + (mpf(i) + 0.5) / entries
            chosen.append(near_multiple(2 / (low + high), (1 / low - 1 / high) / 32, 16, 'float', 150000))
            unit = mpf(2)**(mp.floor(log(chosen[-1][1], 2)) + 1 - PLACES['float'])
            worst = max(worst, abs(-log(mpf(chosen[-1][0])) - chosen[-1][1]) / unit)
        print(f'half, {entries} entries: off by at most {float(worst):.3g} ULP')
        for numbers in zip(*chosen):
            print('  ' + ', '.join((v / 2).hex() for v in numbers))


def fit_arctan():
    def q(z):  # atan t = t + t z q(z), z = t^2
        return series(z, lambda z: (atan(sqrt(z)) / sqrt(z) - 1) / z, lambda k: mpf((-1)**(k + 1)) / (2 * k + 3))
    for lane, degree in (('float', 5), ('double', 13)):
        fit('arctan', lane, q, lambda z: z + mpf(10)**-30, degree, 0, mpf('0.4445'))


def fit_sin():
    def s(z):  # sin r = r + r z s(z), z = r^2
        return series(z, lambda z: (sin(sqrt(z)) / sqrt(z) - 1) / z, lambda k: mpf((-1)**(k + 1)) / mp.factorial(2 * k + 3))
    def c(z):  # cos r = 1 - z/2 + z^2 c(z)
        return series(z, lambda z: (cos(sqrt(z)) - 1 + z / 2) / z**2, lambda k: mpf((-1)**k) / mp.factorial(2 * k + 4))
    reach = (pi / 4)**2 * mpf('1.0001')
    for degree in (2, 5):
        fit('sin', 'double', s, lambda z: z + mpf(10)**-30, degree, 0, reach)
        fit('cos', 'double', c, lambda z: z**2 + mpf(10)**-30, degree, 0, reach)
    rest = pi / 2
    for bits in (33, 33, 53):
        part = mp.floor(rest * 2**(bits - 1 - int(mp.floor(log(rest, 2))))) / 2**(bits - 1 - int(mp.floor(log(rest, 2))))
        print('pi/2: ' + float(part).hex())
        rest -= part


def fit_sine():
    def p(z):  # sin 2 pi u = u p(z), z = u^2, up to a quarter turn
        return series(z, lambda z: sin(2 * pi * sqrt(z)) / sqrt(z), lambda k: (-1)**k * (2 * pi)**(2 * k + 1) / mp.factorial(2 * k + 1))
    for degree in (4, 8):
        fit('sine', 'double', p, lambda z: 1 / p(z), degree, 0, mpf('1.0001') / 16)
    def q(z):  # sin x = x + x z q(z), z = x^2
        return series(z, lambda z: (sin(sqrt(z)) / sqrt(z) - 1) / z, lambda k: mpf((-1)**(k + 1)) / mp.factorial(2 * k + 3))
    fit('sine', 'float', q, lambda z: (z + mpf(10)**-30) / (1 + z * q(z)), 3, 0, (pi / 2)**2 * mpf('1.0001'))


if __name__ == '__main__':
    {'exp': fit_exp, 'ln': fit_ln, 'tables': tables, 'half': half_ln, 'arctan': fit_arctan, 'sin': fit_sin, 'sine': fit_sine}[sys.argv[1]]()
