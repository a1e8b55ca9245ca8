# sessione_prova.py - a whole session of the desktop program, played from outside as its user would.
#
#   sessione_prova.py ORDAVEL ORDAVEL-DESKTOP
#
# On a display of its own the program gets keys and the mouse, nothing else. What it leaves on the disk must be what
# the command line makes of the same input. With ORDAVEL_SCHERMATE a picture of each step goes into that folder; the
# last one of a session that failed goes there too, or into the temporary folder.

import os
import re
import statistics
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "programma"))
import comune  # noqa: E402
from comune import Prova  # noqa: E402
from schermo import Schermo, aspetta  # noqa: E402

FINESTRA = ".* - Ordavel"
PER_RIGA = 10  # boxes of the selector of numbers
BYTE_COLONNA = 20
PUNTI_MM = 72 / 25.4

NUMERI = [3, 8, 12, 17, 21, 26, 30, 34, 35, 41, 47, 52, 58, 63, 69, 74, 80, 88]
SISTEMA = {
    "classe": 6, "riduzione": 0, "numeri": NUMERI,
    "righe": [["Peso", "Caselle :\r\n1-2-3-4-5-6", "220-290", "200-310", "1"],
              ["Pari-Dispari", "Pari", "2-3-4", "1-5", "1"],
              ["Consecutivi", "Consecutivi", "0-1", "2", "1"],
              ["LinkOpen", "LinkOpen", "", "", ""],
              ["Cadenze", "Cadenze", "1-2", "", " "],
              ["Figure", "Figure", "1-2", "", " "],
              ["LinkClose", "LinkClose", "1", "", ""]],
    # The window of the board leaves -1 where no group is in use; a board that says nothing of a group has 0 there.
    "quadro": ["0,2,-1", *["-1,-1,0"] * 19],
}

# What the mouse makes: a pull over a line of the selector, single boxes, a condition.
TRATTO = (41, 48)
SINGOLI = (1, 10, 66, 90)
TOPO = {
    "classe": 6, "riduzione": 0, "numeri": sorted([*range(TRATTO[0], TRATTO[1] + 1), *SINGOLI]),
    "righe": [["Decine", "Decine", "1-2-3", "", " "]],
    "quadro": [],
}


def leggi_pdf(*parole):
    return subprocess.run([*map(str, parole)], capture_output=True, text=True, check=True, timeout=60).stdout


class Pagina:
    """The words of one page of slips, each with the place where it stands."""

    PAROLA = re.compile(r'<word xMin="(.*?)" yMin="(.*?)" xMax=".*?" yMax="(.*?)">(.*?)</word>')

    def __init__(self, pdf, numero):
        testo = leggi_pdf("pdftotext", "-bbox", "-f", numero, "-l", numero, pdf, "-")
        self.parole = [(float(x), float(y), float(basso) - float(y), parola)
                       for x, y, basso, parola in self.PAROLA.findall(testo)]

    def piede(self):
        testi = [parola for *_, parola in self.parole]
        posto = testi.index("Pagina")
        return " ".join(testi[posto:posto + 4])

    def pannelli(self):
        """Where the panel of each column begins, by the number of the column."""
        return {int(dopo[3].replace(".", "")): prima[:2]
                for prima, dopo in zip(self.parole, self.parole[1:]) if prima[3] == "Colonna"}

    def segnati(self, colonna):
        """The numbers of a panel that are written otherwise than most."""
        sinistra, alto = self.pannelli()[colonna]
        dentro = [(altezza, int(parola)) for x, y, altezza, parola in self.parole
                  if parola.isdigit() and 0 <= x - sinistra < 40 * PUNTI_MM and 2 < (y - alto) / PUNTI_MM < 42]
        comune = statistics.mode(altezza for altezza, _ in dentro)
        return sorted(n for altezza, n in dentro if abs(altezza - comune) > 0.1)


class Sessione(Prova):
    """One session, in two halves: by keys alone, then with the mouse."""

    def setUp(self):
        super().setUp()
        self.passo = 0
        schermo = self.nuova("schermo")
        self.schermo = Schermo(schermo)
        self.addCleanup(self.schermo.chiudi)
        self.sistemi = self.nuova("sistemi")
        self.colonne = self.nuova("colonne")
        self.avvia_programma()
        self.addCleanup(self.termina_programma)

    def nuova(self, nome):
        cartella = self.radice / nome
        cartella.mkdir(mode=0o700)
        return cartella

    def avvia_programma(self):
        """The program as on the first day of a user, but for the folders, which are in that of the test."""
        casa = self.nuova("casa")
        self.provvisori = self.nuova("provvisori")
        self.impostazioni = casa / "config" / "ordavel" / "ordavel.ini"
        self.impostazioni.parent.mkdir(parents=True)
        self.impostazioni.write_text(f"[General]\nDirSistemi={self.sistemi}\nPercorsoSalvaColonne={self.colonne}\n"
                                     f"PercorsoTemp={self.provvisori}\nNumeroThreadsSviluppo=2\n")
        ambiente = {nome: valore for nome, valore in os.environ.items()
                    if not nome.startswith(("QT_", "XDG_", "DBUS_", "WAYLAND_"))}
        ambiente.update(DISPLAY=self.schermo.nome, QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", HOME=str(casa),
                        XDG_CONFIG_HOME=str(casa / "config"), XDG_RUNTIME_DIR=str(self.nuova("run")))
        self.messaggi = tempfile.TemporaryFile()
        self.addCleanup(self.messaggi.close)
        self.programma = subprocess.Popen([DESKTOP], env=ambiente, cwd=casa, stdin=subprocess.DEVNULL,
                                          stdout=self.messaggi, stderr=self.messaggi)

    def termina_programma(self):
        self.programma.kill()
        self.programma.wait()

    def detto(self):
        self.messaggi.seek(0)
        return self.messaggi.read().decode()

    # Steps

    def fotografa(self, nome, cartella=os.environ.get("ORDAVEL_SCHERMATE")):
        if cartella:
            self.passo += 1
            file = Path(cartella) / f"sessione-{self.passo:02}-{nome}.png"
            file.write_bytes(self.schermo.immagine_ferma().png())
            return str(file)
        return ""

    def principale(self):
        return self.schermo.fuoco(FINESTRA)

    def finestra(self, nome, *tasti):
        """Waits for a window and gives it keys."""
        finestra = self.schermo.fuoco(nome)
        self.schermo.tasti(*tasti)
        self.fotografa(nome.lower().replace(" ", "-"))
        return finestra

    def chiude(self, nome, *tasti):
        """The keys that end a window."""
        self.schermo.tasti(*tasti)
        self.schermo.sparisce(nome)
        self.principale()

    def messaggio(self, titolo, *tasti):
        """Answers a box."""
        self.finestra(titolo)
        self.chiude(titolo, *tasti)

    def file(self, titolo, percorso):
        """Writes a path into a choice of files and accepts it."""
        finestra = self.schermo.fuoco(titolo)
        altre = self.schermo.tutte() - {finestra}
        self.schermo.scrive(str(percorso))
        self.fotografa(titolo.lower().replace(" ", "-"))
        self.schermo.tasti("Return")
        # A list of names that has opened under the path keeps the keyboard until it has gone, too.
        aspetta(f"la fine di «{titolo}»", lambda: self.schermo.tutte() <= altre)
        return percorso

    def salvato(self, percorso, byte):
        """Waits for a file as long as that. Gives what it holds."""
        aspetta(f"{percorso} di {byte} byte", lambda: percorso.exists() and percorso.stat().st_size == byte)
        return percorso.read_bytes()

    def titolo(self, modello):
        aspetta(f"il titolo «{modello}»", lambda: self.schermo.finestre(modello))

    # The half by keys

    def sceglie_gioco_e_numeri(self):
        self.schermo.tasti("alt+g", "s", "Tab", "6", "F4", "Home")
        posto = 1
        for numero in NUMERI:
            self.schermo.tasti(*["Down"] * ((numero - posto) // PER_RIGA),
                               *["Right"] * ((numero - posto) % PER_RIGA), "space")
            posto = numero
        self.fotografa("numeri")
        self.schermo.tasti("alt+h")

    def condizione(self, scelta, titolo, *tasti):
        """A condition from the menu: by the letter that is underlined there, or from the end by its place."""
        verso = [scelta] if isinstance(scelta, str) else [*["Up"] * scelta, "Return"]
        self.schermo.tasti("alt+c", "Return", *verso)
        self.finestra(titolo, *tasti)
        self.chiude(titolo, "Return")

    def pone_le_condizioni(self):
        segna_sei = ["space", *["Tab", "space"] * 5]
        self.condizione("e", "Punti su peso", *segna_sei, "alt+n", "2", "2", "0", "Tab", "2", "9", "0", "alt+q", "1",
                        "alt+i", "2", "0", "0", "Tab", "3", "1", "0")
        due_tre_quattro = ["Tab"] * 3 + ["space", "Tab", "space", "Tab", "space"]
        self.condizione("d", "Punti su pari dispari", *due_tre_quattro, "alt+q", "1", "Tab", "Tab", "space", "Tab",
                        "space")
        self.condizione("c", "Punti su consecutivi", "space", "Tab", "space", "alt+q", "1", "Tab", "space")
        self.schermo.tasti("ctrl+k")
        self.condizione("x", "Punti su Cadenze", "Tab", "space", "Tab", "space")
        self.condizione(12, "Punti su figure", "Tab", "space", "Tab", "space")
        self.schermo.tasti("ctrl+shift+k")
        self.finestra("LinkClose", "Down", "space")
        self.chiude("LinkClose", "Return")

    def pone_il_gruppo(self):
        self.schermo.tasti("F6")
        self.finestra("Quadro recuperi", "0", "Tab", "2")
        self.chiude("Quadro recuperi", "Return")

    def salva_con_nome(self, nome):
        self.schermo.tasti("ctrl+shift+s")
        percorso = self.file("Salva sistema", self.sistemi / nome)
        self.titolo(f"{nome} - Ordavel")
        self.principale()
        return percorso

    def sviluppa(self):
        self.schermo.tasti("F5")
        self.messaggio("Sviluppo", "Return")

    def guarda(self):
        """The windows that only show: that they come, hear the keys and go."""
        self.schermo.tasti("F7")
        self.finestra("Visualizza colonne", "End")
        self.chiude("Visualizza colonne", "Escape")
        self.schermo.tasti("F9")
        self.finestra("Effetto condizioni", "Down")
        self.chiude("Effetto condizioni", "alt+h")
        self.schermo.tasti("ctrl+F9")
        finestra = self.finestra("Spoglio vincite")
        self.schermo.scrive("3.8.21.34.52.80")
        elenco = self.elenco(finestra)
        vuoto = self.schermo.immagine_ferma().dentro(elenco)
        self.schermo.tasti("Return")
        aspetta("l'elenco delle vincite", lambda: self.schermo.immagine().dentro(elenco) != vuoto)
        self.fotografa("vincite")
        self.chiude("Spoglio vincite", "Escape")

    def elenco(self, finestra):
        """Where a window has its list: in the middle, away from boxes in which a cursor blinks."""
        x, y, larga, alta = self.schermo.riquadro(finestra)
        return (x + larga // 4, y + alta * 2 // 5, larga // 2, alta * 2 // 5)

    def salva_le_colonne(self):
        self.schermo.tasti("alt+o", "s")
        percorso = self.file("Salva colonne", self.colonne / "tasti.col")
        self.principale()
        return percorso

    def riduce(self, percorso):
        self.schermo.tasti("F12")
        self.finestra("Riduzione colonne", "alt+s")
        self.file("Apri file", percorso)
        self.finestra("Riduzione colonne", "alt+r", "Down", "Return")
        self.finestra("Ordavel")
        self.schermo.tasti("Return")
        self.schermo.sparisce("Ordavel")
        self.finestra("Riduzione colonne")
        self.chiude("Riduzione colonne", "alt+h")

    # The half with the mouse

    def caselle(self):
        """The middles of all boxes of the selector of numbers: where a key moves its frame, the picture changes."""
        self.schermo.tasti("Home")
        prima = self.schermo.immagine_ferma()
        self.schermo.tasti("Right")
        sinistra, _, destra, _ = prima.cambiati(self.schermo.immagine_ferma())
        self.schermo.tasti("End")
        _, alto, oltre, basso = prima.cambiati(self.schermo.immagine_ferma())
        passo = (oltre - destra) / (PER_RIGA - 2)
        mezza = (destra - sinistra - passo) / 2
        passo_y = (basso - alto - 2 * mezza) / (90 // PER_RIGA - 1)
        return {n: (round(sinistra + mezza + (n - 1) % PER_RIGA * passo),
                    round(alto + mezza + (n - 1) // PER_RIGA * passo_y)) for n in range(1, 91)}

    def sceglie_i_numeri_col_mouse(self):
        self.schermo.tasti("F4")
        caselle = self.caselle()
        self.schermo.tira(caselle[TRATTO[0]], caselle[TRATTO[1]])
        for numero in SINGOLI:
            self.schermo.clic(*caselle[numero])
        self.fotografa("numeri-col-mouse")
        self.schermo.tasti("F4")

    def prima_condizione(self):
        """A point of the first column of the grid."""
        x, y, larga, alta = self.schermo.riquadro(self.principale())
        return x + larga * 18 // 100, y + alta // 2

    def voce(self, prima, posto, voci):
        """Clicks an entry of the menu that has opened above the windows named. Gives all that are open now."""
        menu = aspetta("il menu", lambda: self.schermo.tutte() - prima)
        x, y, larga, alta = self.schermo.riquadro(*menu)
        self.schermo.clic(x + larga // 3, y + round(alta * (posto + 0.5) / voci))
        return prima | menu

    def condizione_col_mouse(self):
        punto = self.prima_condizione()
        finestre = self.schermo.tutte()
        self.schermo.clic(*punto, bottone=3)
        finestre = self.voce(finestre, 4, 5)
        self.fotografa("menu")
        self.voce(finestre, 22, 36)
        finestra = self.finestra("Punti su decine", "Tab", "space", "Tab", "space", "Tab", "space")
        self.preme(finestra, 1)
        self.schermo.sparisce("Punti su decine")

    def preme(self, finestra, da_destra):
        """Clicks one of the buttons that stand in a row at the lower right."""
        x, y, larga, alta = self.schermo.riquadro(finestra)
        self.schermo.clic(x + larga - 50 - 86 * da_destra, y + alta - 22)

    def cambia_idea(self):
        """A condition looked at, taken away and brought back."""
        self.schermo.clic(*self.prima_condizione(), volte=2)
        finestra = self.finestra("Punti su decine", "space")
        self.preme(finestra, 0)
        self.schermo.sparisce("Punti su decine")
        self.principale()
        self.schermo.tasti("Delete", "ctrl+z")

    def riapre(self, percorso):
        """Another system, over changes that are not kept."""
        self.schermo.tasti("F4", "Home", "space", "F4")
        self.titolo(r"topo.sic\* - Ordavel")
        self.schermo.tasti("ctrl+o")
        self.finestra("Ordavel")
        self.schermo.tasti("alt+s")
        self.file("Apri sistema", percorso)
        self.titolo(f"{percorso.name} - Ordavel")
        self.principale()

    def esporta(self, byte):
        """The columns as text, so many bytes of it. A window shows how far it is, and takes the keyboard meanwhile."""
        self.schermo.tasti("alt+o", "c")
        testo = self.salvato(self.file("Salva colonne formato testo", self.colonne / "tasti.txt"), byte)
        self.schermo.sparisce("Ordavel")
        self.principale()
        return testo

    def stampa(self):
        """The slips as PDF: the file is put in its place when it is whole."""
        self.schermo.tasti("alt+f", "p")
        pdf = self.file("Schedine in PDF", self.colonne / "tasti.pdf")
        aspetta("il PDF", pdf.exists)
        self.principale()
        return pdf

    def esce(self):
        self.schermo.tasti("ctrl+q")
        self.assertEqual(self.programma.wait(60), 0)
        self.assertEqual(self.detto(), "")
        self.assertEqual(os.listdir(self.provvisori), ["Sviluppo.col"])
        self.assertIn(f"SistemiRecenti={self.sistemi}/tasti.sic, {self.sistemi}/topo.sic\n",
                      self.impostazioni.read_text())

    def controlla_le_schedine(self, pdf, byte):
        """As many pages as the columns fill, numbered; on the slips the numbers of the first and of the last one."""
        colonne = [sorted(n for n in byte[i:i + BYTE_COLONNA] if n) for i in range(0, len(byte), BYTE_COLONNA)]
        prima = Pagina(pdf, 1)
        piena = len(prima.pannelli())
        pagine = -(-len(colonne) // piena)
        self.assertIn(f"Pages: {pagine}", " ".join(leggi_pdf("pdfinfo", pdf).split()))
        ultima = Pagina(pdf, pagine)
        self.assertEqual(len(ultima.pannelli()), len(colonne) - piena * (pagine - 1))
        self.assertEqual(prima.piede(), f"Pagina 1 di {pagine}")
        self.assertEqual(ultima.piede(), f"Pagina {pagine} di {pagine}")
        self.assertEqual(prima.segnati(1), colonne[0])
        self.assertEqual(ultima.segnati(len(colonne)), colonne[-1])

    # The whole

    def test_una_sessione(self):
        try:
            self.meta_a_tasti()
            self.meta_col_mouse()
        except BaseException:
            cartella = os.environ.get("ORDAVEL_SCHERMATE") or tempfile.gettempdir()
            print(self.fotografa("fallita", cartella), self.detto(), sep="\n", file=sys.stderr)
            raise

    def meta_a_tasti(self):
        self.principale()
        self.sceglie_gioco_e_numeri()
        self.pone_le_condizioni()
        self.pone_il_gruppo()
        atteso = self.leggi(self.crea(SISTEMA))
        salvato = self.salva_con_nome("tasti.sic")
        self.assertEqual(salvato.read_bytes(), atteso)

        self.sviluppa()
        self.guarda()
        self.esegui("sviluppa", "prova.sic", "-o", "prova.col")
        attese = self.leggi("prova.col")
        colonne = self.salva_le_colonne()
        self.assertEqual(self.salvato(colonne, len(attese)), attese)
        self.schermo.tasti("ctrl+s")
        con_colonne = atteso + b"COLONNE" + attese
        self.assertEqual(self.salvato(salvato, len(con_colonne)), con_colonne)

        self.riduce(colonne)
        self.esegui("riduci", "prova.col", "--sequenziale", "--riduzione", "2")
        self.assertEqual((self.colonne / "tasti_Rid_N-2.col").read_bytes(), self.leggi("prova_Rid_N-2.col"))

    def meta_col_mouse(self):
        self.schermo.tasti("ctrl+n")
        self.titolo("Senza nome - Ordavel")
        self.sceglie_i_numeri_col_mouse()
        self.condizione_col_mouse()
        self.cambia_idea()
        salvato = self.salva_con_nome("topo.sic")
        self.assertEqual(salvato.read_bytes(), self.leggi(self.crea(TOPO, "topo.sic")))

        self.riapre(self.sistemi / "tasti.sic")
        attese = self.leggi("prova.col")
        self.esegui("esporta", "prova.col", "prova.txt")
        atteso = self.leggi("prova.txt")
        self.assertEqual(self.esporta(len(atteso)), atteso)
        self.controlla_le_schedine(self.stampa(), attese)
        self.esce()


if __name__ == "__main__":
    DESKTOP = os.path.abspath(sys.argv.pop(2))
    comune.avvia()
