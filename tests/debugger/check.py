"""Run by gdb on the program built from main.cpp: what it shows of each object is the comment beside it."""

import pathlib
import re
import xml.etree.ElementTree

import gdb

here = pathlib.Path(__file__).parent
faults = []
gdb.execute("break Stop")
gdb.execute("run")
gdb.execute("up")
objects = re.findall(r"(\w+)(?:\(.*\))?; +// (.*)", (here / "main.cpp").read_text())
for name, expected in objects:
    shown = gdb.execute("output " + name, to_string=True)
    if shown != expected:
        faults.append(f"{name} = {shown}\nis to be\n{expected}")

# Every expression of the natvis file means something for the type that it stands under.
tree = xml.etree.ElementTree.parse(here.parents[1] / "debugger/vertra.natvis")
expressions = 0
for kind in tree.findall(".//{*}Type"):
    scalar = "keel::SmartTreeList" if "SmartPtr" in kind.get("Name") else "float"
    name = kind.get("Name").replace("*", scalar).replace("Tree<float>", "TreeVector")
    for element in kind.iter():
        text = element.text or ""
        found = re.findall(r"{(.+?)}", text) if element.tag.endswith("DisplayString") else [text.strip()]
        for expression in filter(None, found + [element.get("Condition")]):
            expression = re.sub(r",\w+$", "", expression)
            expression = re.sub(r"(?<![\w.>])(?!int\b)([a-z]\w*)", rf"(({name}*)0)->\1", expression)
            expressions += 1
            try:
                gdb.parse_and_eval(f"sizeof({expression})")
            except gdb.error as error:
                faults.append(f"natvis, {name}: {expression}: {error}")

print("\n".join(faults))
print(f"{len(objects)} objects, {expressions} expressions, {len(faults)} faults")
