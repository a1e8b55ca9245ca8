# schermo.py - a display of its own, and on it hands and eyes: keys, mouse, windows, pictures.

import os
import struct
import subprocess
import time
import zlib
from pathlib import Path

GIRO = 0.05  # between two looks at something that is waited for
ATTESA = 60  # a guard against hanging, nothing else: a busy machine may take its time
SCHERMO = "1280x900x24"


class NonAccade(AssertionError):
    """What was waited for has not come."""


def aspetta(cosa, condizione, secondi=ATTESA):
    """Gives the first value of the condition that counts as true."""
    fine = time.monotonic() + secondi
    while True:
        valore = condizione()
        if valore:
            return valore
        if time.monotonic() > fine:
            raise NonAccade(f"non accade: {cosa}")
        time.sleep(GIRO)


class Immagine:
    """The pixels of the display at one moment, as the server keeps them: four bytes each, blue first."""

    def __init__(self, byte):
        testata = struct.unpack(">25I", byte[:100])
        self.larghezza, self.altezza = testata[4], testata[5]
        self.passo = testata[12]
        inizio = testata[0] + testata[19] * 12
        self.punti = byte[inizio:inizio + self.passo * self.altezza]

    def riga(self, y):
        return self.punti[y * self.passo:y * self.passo + 4 * self.larghezza]

    def dentro(self, riquadro):
        """The pixels of a rectangle (left, top, width, height)."""
        x, y, larga, alta = riquadro
        return b"".join(self.riga(r)[4 * x:4 * (x + larga)] for r in range(y, y + alta))

    def cambiati(self, altra):
        """The smallest rectangle (left, top, right, bottom) with all that differs; None when nothing does."""
        righe = [y for y in range(self.altezza) if self.riga(y) != altra.riga(y)]
        if not righe:
            return None
        colonne = [x for x in range(self.larghezza)
                   if any(self.riga(y)[4 * x:4 * x + 3] != altra.riga(y)[4 * x:4 * x + 3] for y in righe)]
        return (colonne[0], righe[0], colonne[-1], righe[-1]) if colonne else None

    def png(self):
        """The same as the bytes of a picture file."""
        righe = bytearray()
        for y in range(self.altezza):
            riga = self.riga(y)
            rgb = bytearray(3 * self.larghezza)
            for colore in range(3):
                rgb[colore::3] = riga[2 - colore::4]
            righe += b"\0" + rgb

        def pezzo(tipo, dati):
            return struct.pack(">I", len(dati)) + tipo + dati + struct.pack(">I", zlib.crc32(tipo + dati))

        testata = struct.pack(">IIBBBBB", self.larghezza, self.altezza, 8, 2, 0, 0, 0)
        return (b"\x89PNG\r\n\x1a\n" + pezzo(b"IHDR", testata) + pezzo(b"IDAT", zlib.compress(bytes(righe), 1)) +
                pezzo(b"IEND", b""))


class Schermo:
    """A display without a window manager: whoever opens a window gives it the keyboard by `fuoco`."""

    def __init__(self, cartella):
        """The folder takes what the server keeps of the picture."""
        self._immagine = Path(cartella) / "Xvfb_screen0"
        leggi, scrivi = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(scrivi), "-screen", "0", SCHERMO, "-nolisten", "tcp", "-fbdir", str(cartella)],
            pass_fds=[scrivi], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(scrivi)
        with os.fdopen(leggi) as numero:
            self.nome = ":" + numero.readline().strip()
        if self.nome == ":":
            self.chiudi()
            raise NonAccade("Xvfb non parte")
        self._ambiente = dict(os.environ, DISPLAY=self.nome, LC_ALL="C.UTF-8")

    def chiudi(self):
        self._server.terminate()
        self._server.wait()

    def xdotool(self, *parole, fallisce=False):
        """Gives the lines that it writes; none when it fails and may."""
        fatto = subprocess.run(["xdotool", *map(str, parole)], env=self._ambiente, capture_output=True, text=True,
                               check=False, timeout=ATTESA)
        if fatto.returncode != 0 and not fallisce:
            raise NonAccade(f"xdotool {parole}: {fatto.stderr.strip()}")
        return fatto.stdout.split("\n")[:-1] if fatto.returncode == 0 else []

    # What is to be seen

    def finestre(self, nome):
        """The windows on show whose whole title fits a pattern."""
        return self.xdotool("search", "--onlyvisible", "--name", f"^{nome}$", fallisce=True)

    def tutte(self):
        """All windows on show, menus and lists that hang from others among them."""
        return set(self.finestre(".*"))

    def fuoco(self, nome):
        """Waits for a window and gives it the keyboard, as a click on its title would. Gives the window."""
        finestra = aspetta(f"la finestra «{nome}»", lambda: self.finestre(nome))[-1]
        aspetta(f"la tastiera a «{nome}»", lambda: self._ha_la_tastiera(finestra))
        return finestra

    def _ha_la_tastiera(self, finestra):
        if self.xdotool("getwindowfocus", "-f", fallisce=True) == [finestra]:
            return True
        self.xdotool("windowfocus", finestra, fallisce=True)
        return False

    def sparisce(self, nome):
        aspetta(f"la fine della finestra «{nome}»", lambda: not self.finestre(nome))

    def riquadro(self, finestra):
        """Left, top, width, height of a window on the display."""
        valori = dict(riga.split("=") for riga in self.xdotool("getwindowgeometry", "--shell", finestra))
        return tuple(int(valori[nome]) for nome in ("X", "Y", "WIDTH", "HEIGHT"))

    def immagine(self):
        return Immagine(self._immagine.read_bytes())

    def immagine_ferma(self):
        """The picture once it has not changed between two looks; a pointer that turns never lets it."""
        prima = self.immagine()
        for _ in range(20):
            time.sleep(2 * GIRO)
            dopo = self.immagine()
            if dopo.punti == prima.punti:
                break
            prima = dopo
        return dopo

    # What is done

    def tasti(self, *tasti):
        """Keys by their X names, "ctrl+s", each pressed and let go."""
        if tasti:
            self.xdotool("key", "--delay", "5", *tasti)

    def scrive(self, testo):
        self.xdotool("type", "--delay", "5", testo)

    def clic(self, x, y, volte=1, bottone=1):
        self.xdotool("mousemove", x, y, "click", "--repeat", volte, "--delay", "20", bottone)

    def tira(self, da, a):
        """Pulls the mouse from a point to another, in steps as a hand does."""
        passi = 10
        parole = ["mousemove", *da, "mousedown", "1"]
        for i in range(1, passi + 1):
            parole += ["mousemove", *(p + (q - p) * i // passi for p, q in zip(da, a))]
        self.xdotool(*parole, "mouseup", "1")
