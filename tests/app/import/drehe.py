"""Writes a network of GNU Gama with other axes: drehe.py FILE AXES WINKEL > FILE. The network stays where it is."""
import re
import sys

text = open(sys.argv[1], encoding="utf-8").read()
achsen, winkel = sys.argv[2], sys.argv[3]


def wert(buchstabe, nord, ost):
    """The text of a coordinate along an axis that leads to n, e, s or w."""
    zahl = nord if buchstabe in "ns" else ost
    return zahl if buchstabe in "ne" else zahl[1:] if zahl.startswith("-") else "-" + zahl


def drehe(treffer):
    vor, nord, dazwischen, ost = treffer.groups()
    return f'{vor}"{wert(achsen[0], nord, ost)}"{dazwischen}"{wert(achsen[1], nord, ost)}"'


for x, y in (("x", "y"), ("dx", "dy")):
    text = re.sub(rf'( {x}=)"([^"]*)"( {y}=)"([^"]*)"', drehe, text)
if winkel == "right-handed":
    text = re.sub(r'(<direction [^>]*val=)"([^"]*)"', lambda t: f'{t[1]}"{400 - float(t[2]):.5f}"', text)
sys.stdout.reconfigure(encoding="utf-8")
print(text.replace('axes-xy="ne"', f'axes-xy="{achsen}"').replace("left-handed", winkel), end="")
