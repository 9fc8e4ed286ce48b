"""Rows of a Paradox table, read from the format alone; fields can be changed in place."""
import struct

GROESSEN = {0x03: 2, 0x04: 4, 0x06: 8, 0x09: 1, 0x15: 8}


class Tafel:
    def __init__(self, datei):
        with open(datei, "rb") as f:
            self.bytes = bytearray(f.read())
        b = self.bytes
        self.satz, kopf = struct.unpack_from("<HH", b, 0)
        anzahl = struct.unpack_from("<H", b, 0x21)[0]
        arten = [(b[0x78 + 2 * i], b[0x79 + 2 * i]) for i in range(anzahl)]
        name = 0x78 + 2 * anzahl + 4 + 4 * anzahl + (261 if b[0x39] == 0x0C else 79)
        self.felder, ort = {}, 0
        for art, breite in arten:
            ende = b.index(0, name)
            self.felder[b[name:ende].decode("cp1252")] = (ort, art, GROESSEN.get(art, breite))
            ort, name = ort + GROESSEN.get(art, breite), ende + 1
        assert ort == self.satz, "Länge der Sätze"
        self.orte, block = [], struct.unpack_from("<H", b, 0x0E)[0]
        while block:
            anfang = kopf + (block - 1) * b[5] * 1024
            block, _, weitere = struct.unpack_from("<HHh", b, anfang)
            self.orte += range(anfang + 6, anfang + 6 + weitere + self.satz, self.satz)

    def wert(self, satz, feld):
        """None for null and for fields that the table has not."""
        if feld not in self.felder:
            return None
        ort, art, breite = self.felder[feld]
        roh = bytes(self.bytes[satz + ort:satz + ort + breite])
        if art == 0x01:
            return roh.split(b"\0")[0].decode("cp1252").rstrip() or None
        if not any(roh):
            return None
        if art == 0x09:
            return roh == b"\x81"
        zahl = int.from_bytes(roh, "big")
        oben = 1 << (8 * breite - 1)
        if art in (0x03, 0x04):
            return zahl - oben
        roh = (zahl - oben if zahl >= oben else 2 * oben - 1 - zahl).to_bytes(8, "big")
        return struct.unpack(">d", roh)[0]

    def setze(self, satz, feld, zahl):
        """Null for None, else a real that is not negative."""
        ort, _, breite = self.felder[feld]
        roh = bytes(breite) if zahl is None else struct.pack(">d", zahl)
        if zahl is not None:
            roh = bytes([roh[0] | 0x80]) + roh[1:]
        self.bytes[satz + ort:satz + ort + breite] = roh

    def schreibe(self, datei):
        with open(datei, "wb") as f:
            f.write(self.bytes)
