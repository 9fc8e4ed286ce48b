"""Counts the point numbers that lie on others in word boxes of poppler, before and after ordering, and those that lie
across edges of sheets."""
import re
import sys

WORT = re.compile(r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>')


def lies(name):
    """Boxes of the digits and capitals: of the height of a line they fill the middle two thirds."""
    kaesten = {}
    for links, oben, rechts, unten, text in WORT.findall(open(name, encoding="utf-8").read()):
        links, oben, rechts, unten = (float(v) for v in (links, oben, rechts, unten))
        rand = (unten - oben) / 6
        kaesten.setdefault((text, round(links, 1), round(oben, 1)), (links, oben + rand, rechts, unten - rand))
    return list(kaesten.values())


def ueberdeckte(k):
    treffen = lambda a, b: a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]
    return sum(any(i != n and treffen(a, b) for n, b in enumerate(k)) for i, a in enumerate(k))


def zerschnittene(name):
    rand = 10 / 25.4 * 72
    for seite in re.split("<page ", open(name, encoding="utf-8").read())[1:]:
        weite, hoehe = (float(v) for v in re.match(r'width="([\d.]+)" height="([\d.]+)"', seite).groups())
        for links, oben, rechts, unten, text in WORT.findall(seite):
            links, oben, rechts, unten = (float(v) for v in (links, oben, rechts, unten))
            hoch = (unten - oben) / 6
            innen = links >= rand and rechts <= weite - rand
            if not innen or oben + hoch < rand or unten - hoch > hoehe - rand:
                yield text


vorher, nachher = (lies(name) for name in sys.argv[1:3])
print(f"{len(vorher)} Wörter, übereinander: {ueberdeckte(vorher)} vorher, {ueberdeckte(nachher)} nachher")
if len(nachher) != len(vorher) or len(vorher) < 150:
    sys.exit("Es fehlen Wörter.")
if ueberdeckte(nachher) > 0 or ueberdeckte(vorher) < 10:
    sys.exit("Nummern liegen aufeinander.")
if kanten := list(zerschnittene(sys.argv[3])):
    sys.exit(f"Über Blattkanten: {' '.join(kanten)}")
