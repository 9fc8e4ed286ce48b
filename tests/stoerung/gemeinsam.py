"""What the harnesses share: a large network, one run of the program under limits, and what a whole file looks like."""

import json
import os
import re
import resource
import signal
import struct
import subprocess

# Format of the batch mode -> name of the file that it writes for an input called STAMM.EIN or STAMM.ZRW.
DATEINAMEN = {"zrw": "{}.ZRW", "png": "{}.png", "bmp": "{}.bmp", "svg": "{}.svg", "pdf": "{}.pdf",
              "geojson": "{}.geojson", "dxf": "ZRW.DXF", "plt": "ZRW.PLT"}
# What a sanitizer prints; its exit status may be that of a message.
SANITIZER = re.compile(r"Sanitizer|runtime error:")


def dateiname(format_, stamm):
    return DATEINAMEN[format_].format(stamm)


def bilddatei(punkte, kanten_je_punkt=2):
    """A picture file of any size: points on a grid, each joined to the next ones. 1200 x 800 px, 25 m a pixel."""
    breite = max(1, int(punkte ** 0.5))
    orte = [(20 + 8 * (i % breite), 20 + 8 * (i // breite)) for i in range(punkte)]
    kanten = [(i, i + j) for i in range(1, punkte + 1) for j in range(1, kanten_je_punkt + 1) if i + j <= punkte]
    kanten = kanten[:65535]
    oben = 100000.0
    teile = [struct.pack("<7d4i2Ii", 25.0, oben, 0, oben, 0, 0, 0, punkte, len(kanten), 1200, 800, 0, 0, 3)]
    teile += [struct.pack("<2dHI3B2q", 25.0 * x, oben - 25.0 * y, i, 0xFF, 1, 1, 1, x, y)
              for i, (x, y) in enumerate(orte, 1)]
    teile += [struct.pack("<H15pI2qB2q", i, b"%d" % i, 0, 10, -5, 1, x, y) for i, (x, y) in enumerate(orte, 1)]
    teile += [struct.pack("<2H2qI3B2q", a, e, *orte[e - 1], 0xFF, 1, 1, 1, *orte[a - 1]) for a, e in kanten]
    return b"".join(teile)


def umgebung(ordner, **mehr):
    """Nothing of the user's own settings takes part, and nothing of a run stays outside its folder."""
    u = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "TAVELIN")}
    u.update(HOME=ordner, XDG_CONFIG_HOME=ordner, XDG_RUNTIME_DIR=ordner, QT_QPA_PLATFORM="offscreen")
    u.update(mehr)
    return u


class Ergebnis:
    def __init__(self, status, ausgabe, meldung):
        self.status = status  # None: did not end in time; negative: killed by that signal
        self.ausgabe = ausgabe
        self.meldung = meldung


def grenzen_setzen(grenzen):
    for welche, wert in grenzen.items():
        resource.setrlimit(getattr(resource, welche), (wert, wert))
    if "RLIMIT_FSIZE" in grenzen:
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)  # the write fails instead, as on a full disk
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def lauf(worte, cwd, zeit=10.0, grenzen=None, nutzer=None, **mehr):
    """One run to its end. A run that takes longer than `zeit` seconds is killed and has no status."""
    kind = subprocess.Popen(worte, cwd=cwd, env=umgebung(cwd, **mehr), stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, user=nutzer,
                            extra_groups=[] if nutzer else None,
                            preexec_fn=lambda: grenzen_setzen(grenzen or {}))
    try:
        aus, err = kind.communicate(timeout=zeit)
    except subprocess.TimeoutExpired:
        kind.kill()
        aus, err = kind.communicate()
        return Ergebnis(None, aus.decode("utf-8", "replace"), err.decode("utf-8", "replace"))
    return Ergebnis(kind.returncode, aus.decode("utf-8", "replace"), err.decode("utf-8", "replace"))


def _zrw_ganz(b):
    if len(b) < 84:
        return False
    punkte, kanten = struct.unpack_from("<2i", b, 56)
    return len(b) == 84 + (punkte & 0xFFFF) * (41 + 54) + (kanten & 0xFFFF) * 43


def _json_ganz(b):
    try:
        json.loads(b)
        return True
    except ValueError:
        return False


GANZ = {
    ".zrw": _zrw_ganz,
    ".png": lambda b: b.startswith(b"\x89PNG") and b.endswith(b"IEND\xaeB`\x82"),
    ".bmp": lambda b: b.startswith(b"BM") and len(b) == struct.unpack_from("<I", b, 2)[0],
    ".svg": lambda b: b.rstrip().endswith(b"</svg>"),
    ".pdf": lambda b: b.startswith(b"%PDF-") and b.endswith(b"%%EOF\n"),
    ".geojson": _json_ganz,
    ".dxf": lambda b: b.endswith(b"ENDSEC\r\n  0\r\nEOF\r\n"),
    ".plt": lambda b: not b or b.endswith(b";\r\n"),
}


def halbe_dateien(ordner):
    """Names in a folder of outputs that are not whole, or that should not be there at all."""
    schlecht = []
    for name in sorted(os.listdir(ordner)):
        endung = os.path.splitext(name)[1].lower()
        with open(os.path.join(ordner, name), "rb") as f:
            if endung not in GANZ or not GANZ[endung](f.read()):
                schlecht.append(name)
    return schlecht
