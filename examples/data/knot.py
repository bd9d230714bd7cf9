#!/usr/bin/env python3
"""Prints knot.obj, the mesh of the examples, a tube around a torus knot: ./knot.py > knot.obj"""
from math import cos, hypot, pi, sin

AROUND, ACROSS = 2, 3  # how often the knot runs around its axis, and in and out of the torus meanwhile
TUBE = 0.55  # radius; that of the torus is 2, that of its ring 1
ALONG, RIM = 160, 14  # quads


def point(t, u):
    """On the tube: t runs along the knot and u around its rim, both from 0 to 2 pi."""
    p, q = AROUND * t, ACROSS * t
    r = 2 + cos(q)
    center = r * cos(p), r * sin(p), -sin(q)
    normal = cos(q) * cos(p), cos(q) * sin(p), -sin(q)  # of the torus, so at right angles to the knot
    tangent = (-ACROSS * sin(q) * cos(p) - AROUND * r * sin(p),
               -ACROSS * sin(q) * sin(p) + AROUND * r * cos(p),
               -ACROSS * cos(q))
    side = (tangent[1] * normal[2] - tangent[2] * normal[1],
            tangent[2] * normal[0] - tangent[0] * normal[2],
            tangent[0] * normal[1] - tangent[1] * normal[0])
    exact = (c + TUBE * (cos(u) * n + sin(u) * s / hypot(*side)) for c, n, s in zip(center, normal, side))
    return tuple(round(x, 4) + 0.0 for x in exact)  # + 0.0: no -0


def vertex(i, j):
    return i % ALONG * RIM + j % RIM + 1


print("# A tube around a torus knot, made by knot.py")
for i in range(ALONG):
    for j in range(RIM):
        print("v %.4f %.4f %.4f" % point(2 * pi * i / ALONG, 2 * pi * j / RIM))
for i in range(ALONG):
    for j in range(RIM):
        print("f", vertex(i, j), vertex(i, j + 1), vertex(i + 1, j + 1), vertex(i + 1, j))
