# Sphinx: the pages of this directory, and a page of reference for each header, from Doxygen's XML. See scripts/docs.
import logging
import pathlib
import re
import xml.etree.ElementTree

root = pathlib.Path(__file__).resolve().parent.parent
project = html_title = "vertra"
extensions = ["breathe", "myst_parser"]
myst_heading_anchors = 3
breathe_projects = {project: str(root / "build/doxygen/xml")}
breathe_default_project = project
html_theme = "furo"
html_static_path = ["_static"]
html_css_files = ["narrow.css"]
html_show_copyright = html_copy_source = False

for path in root.glob("build/doxygen/xml/*.xml"):
    """Members in the order of the header, instead of by kind."""
    document = xml.etree.ElementTree.parse(path)
    for compound in document.iter("compounddef"):
        sections = compound.findall("sectiondef")
        members = [member for section in sections for member in section.findall("memberdef")]
        for section in sections[1:]:
            compound.remove(section)
        for section in sections[:1]:
            section.clear()
            section.set("kind", "user-defined")
            xml.etree.ElementTree.SubElement(section, "header").text = "In the order of the header"
            section.extend(sorted(members, key=lambda member: int(member.find("location").get("line"))))
    document.write(path)

for path in root.glob("build/doxygen/xml/*_8h.xml"):
    header = path.stem.removesuffix("_8h").replace("__", "_") + ".h"
    title = str(next(root.glob(f"vertra/**/{header}")).relative_to(root))
    page = root / f"docs/reference/{header}.rst"
    page.write_text(f"{title}\n{'=' * len(title)}\n\n.. doxygenfile:: {header}\n")


def link_reference(app, docname, source):
    """A link to a header, which on a forge is the header, leads to its page of reference here."""
    source[0] = re.sub(r"\]\((?:\.\./)+vertra/(?:\w+/)?(\w+\.h)\)", r"](/reference/\1.rst)", source[0])


# Every page of the reference declares its namespaces.
logging.getLogger("sphinx.sphinx.domains.cpp").addFilter(
    lambda record: not re.search("Duplicate .*cpp:type:: (vertra|keel)'", record.getMessage(), re.DOTALL))


def setup(app):
    app.connect("source-read", link_reference)
