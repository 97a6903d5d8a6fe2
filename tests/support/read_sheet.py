"""Tells what a spreadsheet file (.xlsx) holds, a cell a line: place, type, value; "bold" where it is; then what is frozen,
the widths and the properties."""
import re
import sys
import xml.etree.ElementTree as xml
import zipfile

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
book = zipfile.ZipFile(sys.argv[1])
part = lambda name: xml.fromstring(book.read(name))

texts = []
if "xl/sharedStrings.xml" in book.namelist():
    texts = ["".join(t.text or "" for t in each.iter(MAIN + "t")) for each in part("xl/sharedStrings.xml")]
styles = part("xl/styles.xml")
codes = {each.get("numFmtId"): each.get("formatCode") for each in styles.iter(MAIN + "numFmt")}
codes.update({"0": "General", "2": "0.00"})
fonts = [each.find(MAIN + "b") is not None for each in styles.find(MAIN + "fonts")]
looks = [(codes[each.get("numFmtId")], fonts[int(each.get("fontId"))]) for each in styles.find(MAIN + "cellXfs")]
page = part("xl/worksheets/sheet1.xml")
for cell in page.iter(MAIN + "c"):
    form, bold = looks[int(cell.get("s", "0"))]
    value = cell.find(MAIN + "v").text
    kind = "text" if cell.get("t") == "s" else "number " + form
    print(cell.get("r"), kind, texts[int(value)] if kind == "text" else value, *(["bold"] if bold else []), sep="|")
for pane in page.iter(MAIN + "pane"):
    print("frozen", pane.get("ySplit"), sep="|")
for each in page.iter(MAIN + "col"):
    print("width", each.get("min"), round(float(each.get("width"))), sep="|")
for each in [*part("docProps/core.xml"), *part("docProps/app.xml")]:
    if re.sub("{.*}", "", each.tag) in ("title", "subject", "Company") and each.text:
        print(re.sub("{.*}", "", each.tag), each.text, sep="|")
