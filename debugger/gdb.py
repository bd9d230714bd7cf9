"""Shows vertra's types in gdb. What has no printer here reads well as a plain record of those that have."""

import ctypes
import math

import gdb
import gdb.printing
import gdb.types


def digits(value):
    """The shortest digits that read back as the same number."""
    read = ctypes.c_float if value.type.sizeof == 4 else ctypes.c_double
    number = float(value)
    texts = ("%.*g" % (precision, number) for precision in range(1, 18))
    return next(text for text in texts if read(float(text)).value == number or math.isnan(number))


def row(scalars):
    return "(" + ", ".join(map(digits, scalars)) + ")"


def fields(value, names):
    return [value[name] for name in names]


def whole(pointer):
    """The object as the class that it is, not the one that it is pointed to by."""
    return pointer.cast(pointer.dynamic_type).dereference()


class Printer:
    def __init__(self, value):
        self.value = value


class Row(Printer):
    """The fields in their order, as (1, 2, 3, 0)."""

    def to_string(self):
        return row(self.value[field] for field in self.value.type.fields())


class Matrix(Printer):
    def to_string(self):
        return "rows"

    def children(self):
        m = self.value["m"]
        return ((str(i), row(m[4 * i + j] for j in range(4))) for i in range(4))


class Quaternion(Printer):
    """The numbers, and the rotation that SetAxisAngle makes of them."""

    def to_string(self):
        w, x, y, z = (float(f) for f in fields(self.value, "wxyz"))
        text = "(w: %s, x: %s, y: %s, z: %s)" % tuple(map(digits, fields(self.value, "wxyz")))
        sine = math.hypot(x, y, z)
        if not 0 < math.hypot(sine, w) < math.inf:
            return text + ", no rotation"
        axis = tuple(part / sine for part in (x, y, z)) if sine > 0 else (1, 0, 0)
        return text + ", %.6g rad about (%.6g, %.6g, %.6g)" % ((2 * math.atan2(sine, w),) + axis)


class Color(Printer):
    """The packed word as #AARRGGBB, and the channels."""

    def to_string(self):
        packed = [float(f) * 255 for f in fields(self.value, "argb")]
        packed = [int(byte) & 255 if -(2.0**63) <= byte < 2.0**63 else 0 for byte in packed]
        return "#%02X%02X%02X%02X " % tuple(packed) + row(fields(self.value, "rgba"))


class Plane(Printer):
    def to_string(self):
        return "normal %s, distance %s" % (Row(self.value["normal"]).to_string(), digits(self.value["distance"]))


class Box(Printer):
    """Empty is a box that holds no point, as a reset one."""

    def to_string(self):
        low, high = (fields(self.value[corner], "xyz") for corner in ("min", "max"))
        if any(a > b for a, b in zip(low, high)):
            return "empty"
        return "extent " + row(b - a for a, b in zip(low, high))

    def children(self):
        return ((corner, self.value[corner]) for corner in ("min", "max"))


class Shared(Printer):
    def to_string(self):
        counter = self.value["counter"]
        return "%d shared" % counter["count"] if counter else "empty"

    def children(self):
        pointer = self.value["pointer"]
        return [("object", whole(pointer))] if pointer else []


class Tree(Printer):
    """A node with all that is below it, each child as the class that it is."""

    def to_string(self):
        return "child" if self.value["parent"] else "root"

    def children(self):
        printer = gdb.default_visualizer(self.value["children"])
        if printer is None:  # without the printers of the standard library
            yield "children", self.value["children"]
            return
        for i, (_, child) in enumerate(printer.children()):
            yield str(i), child if child.type.code != gdb.TYPE_CODE_PTR else whole(child)


ROWS = "Vec4D Vec3D Vec2D Position2D Dimension2D"
NODES = "Tree TreeVector TreeList TreeDeque SmartTreeVector SmartTreeList"
PRINTERS = {
    **dict.fromkeys(("vertra::" + name for name in ROWS.split()), Row),
    "vertra::Matrix3D": Matrix,
    "vertra::Quat3D": Quaternion,
    "vertra::Color3D": Color,
    "vertra::Plane3D": Plane,
    "vertra::AABBox3D": Box,
    "keel::SmartPtr": Shared,
    **dict.fromkeys(("keel::" + name for name in NODES.split()), Tree),
}


def vertra(value):
    if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
        value = value.referenced_value()
    kind = gdb.types.get_basic_type(value.type)
    printer = PRINTERS.get(kind.tag.split("<")[0]) if kind.tag else None
    return printer(value) if printer and kind.fields() else None  # no fields: known by name only


gdb.printing.register_pretty_printer(gdb.current_objfile(), vertra, replace=True)
