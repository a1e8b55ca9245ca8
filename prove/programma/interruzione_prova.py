# interruzione_prova.py - the stop command: Ctrl-C and the polite kill in a long run, with and without a terminal.

import os
import pty
import re
import signal
import time
import unittest
from itertools import combinations, islice
from pathlib import Path

import comune
from comune import Prova
from definizioni import consecutivi, dispari, in_byte, pari, peso, punti_colonna, resto_di, sistema

# They let many of the first columns through.
OTTO = [peso([1, 2, 3], range(6, 200)), pari({1, 2, 3, 4, 5, 6}), dispari({1, 2, 3, 4, 5, 6, 7}),
        consecutivi(set(range(8))),
        punti_colonna([7, 14, 21, 28, 35], {0, 1, 2, 3}), resto_di(5, {0, 1, 3}), peso([8], range(20, 91)),
        resto_di(9, {0, 1, 2, 3, 4, 5, 6, 7})]
NUMERI = range(1, 46)


class InterruzioneRiduzione(Prova):
    def aspetta_lavoro(self, processo):
        """Waits until the program has worked for a while, whatever else the machine does."""
        fine = time.monotonic() + comune.SECONDI_MASSIMI
        while self.secondi_lavorati(processo) < 1:
            self.assertIsNone(processo.poll(), "the run has ended by itself")
            self.assertLess(time.monotonic(), fine)
            time.sleep(0.01)

    def secondi_lavorati(self, processo):
        campi = Path(f"/proc/{processo.pid}/stat").read_text(encoding="ascii").rpartition(")")[2].split()
        return int(campi[11]) / os.sysconf("SC_CLK_TCK")

    def interrompi(self, classe, numeri, punti, segnale):
        """Stops the reduction of a million columns: whatever stays covers them all."""
        colonne = in_byte(islice(combinations(range(1, numeri + 1), classe), 1000000))
        self.scrivi("prova.col", colonne)
        processo = self.apri("riduci", "prova.col", "-o", "meno.col", "--punti", punti, "--json")
        self.aspetta_lavoro(processo)
        processo.send_signal(segnale)
        da = time.monotonic()
        uscita, messaggi = self.termina(processo, 130)
        self.assertLess(time.monotonic() - da, 10, "a stop is not kept waiting")
        self.assertEqual(messaggi, "")
        esito = comune.json.loads(uscita)
        self.assertTrue(esito["interrotto"])
        self.assertEqual((esito["colonne"], esito["ridotte"] * 20), (1000000, len(self.leggi("meno.col"))))
        self.assertEqual(self.leggi("prova.col"), colonne)
        self.esegui("garanzia", "prova.col", "meno.col", "--punti", punti)

    def test_righe_di_bit(self):
        self.interrompi(10, 45, 4, signal.SIGINT)

    def test_insiemi_condivisi(self):
        self.interrompi(8, 45, 6, signal.SIGTERM)


class Interruzione(Prova):
    def setUp(self):
        super().setUp()
        # 215553195 columns against so many conditions that each is judged by itself: no machine is through before it is
        # stopped.
        self.condizioni = OTTO * 51
        self.sistema = self.crea(sistema(NUMERI, 8, self.condizioni))

    def aspetta_colonne(self, processo):
        """Waits until the run has written columns somewhere in the temporary folder."""
        fine = time.monotonic() + comune.SECONDI_MASSIMI
        while not any(p.stat().st_size for p in self.temp.glob("*/*.col")):
            self.assertIsNone(processo.poll(), "the run has ended by itself")
            self.assertLess(time.monotonic(), fine)
            time.sleep(0.01)

    def confronta(self, esaminate):
        """The output is what the conditions leave of the columns that were examined, no more and no less."""
        self.assertEqual(esaminate % 10000, 0)
        self.scrivi("viste.col", in_byte(islice(combinations(NUMERI, 8), esaminate)))
        self.esegui("filtra", self.sistema, "--da", "viste.col", "-o", "attese.col")
        self.assertEqual(self.leggi("prova.col"), self.leggi("attese.col"))
        self.assertGreater(len(self.leggi("prova.col")), 0)

    def interrompi(self, *segnali):
        """Stops a run. Gives the object that it printed."""
        processo = self.apri("sviluppa", self.sistema, "-o", "prova.col", "--json")
        self.aspetta_colonne(processo)
        for segnale in segnali:
            processo.send_signal(segnale)
        uscita, messaggi = self.termina(processo, 130)
        self.assertEqual(messaggi, "")
        return comune.json.loads(uscita)

    def test_segnali(self):
        for segnali in ([signal.SIGINT], [signal.SIGTERM], [signal.SIGINT, signal.SIGINT, signal.SIGTERM]):
            with self.subTest(str(segnali)):
                esito = self.interrompi(*segnali)
                self.assertTrue(esito["interrotto"])
                self.assertEqual(esito["integrali"], 215553195)
                self.assertEqual(esito["condizionate"] * 20, len(self.leggi("prova.col")))
                self.assertEqual([(m["icona"], m["testo"]) for m in esito["messaggi"]][0], ("domanda", "Interrompere ?"))
                self.assertEqual(len(esito["condizioni"]), len(self.condizioni))
                contati = esito["condizioni"][0]
                self.assertEqual(contati["ok"] + contati["ko"], esito["sviluppate"])
                self.confronta(esito["sviluppate"])

    def test_file_vecchio_sostituito_da_quello_interrotto(self):
        self.scrivi("prova.col", b"x")
        esito = self.interrompi(signal.SIGINT)
        self.assertEqual(len(self.leggi("prova.col")), esito["condizionate"] * 20)

    def test_filtro(self):
        # A source whose columns come again and again, without taking its room on the disk twice.
        colonne = in_byte(islice(combinations(NUMERI, 8), 10000))
        self.scrivi("tutte.col", colonne * 100)
        processo = self.apri("filtra", self.sistema, "--da", "tutte.col", "-o", "prova.col", "--json")
        self.aspetta_colonne(processo)
        processo.send_signal(signal.SIGTERM)
        uscita, _ = self.termina(processo, 130)
        esito = comune.json.loads(uscita)
        self.assertLess(esito["sviluppate"], esito["integrali"])
        self.scrivi("viste.col", colonne * (esito["sviluppate"] // 10000))
        self.esegui("filtra", self.sistema, "--da", "viste.col", "-o", "attese.col")
        self.assertEqual(self.leggi("prova.col"), self.leggi("attese.col"))

    def test_testo_per_chi_legge(self):
        processo = self.apri("sviluppa", self.sistema, "-o", "prova.col")
        self.aspetta_colonne(processo)
        processo.send_signal(signal.SIGINT)
        uscita, messaggi = self.termina(processo, 130)
        self.assertIn("Interrotto", uscita)
        self.assertEqual(messaggi, "", "no bar without a terminal")

    def test_barra_sul_terminale(self):
        capo, coda = pty.openpty()
        self.addCleanup(os.close, capo)
        # What it prints is more than a pipe holds, and nobody reads that before the terminal is closed.
        with open(self.cartella / "uscita.json", "wb") as stampato:
            processo = self.apri("sviluppa", self.sistema, "-o", "prova.col", "--json", stdout=stampato, stderr=coda)
        os.close(coda)
        mostrato = comune.leggi_terminale(capo, lambda testo: testo.count("resta") >= 2)
        processo.send_signal(signal.SIGINT)
        mostrato += comune.leggi_terminale(capo, lambda testo: False)
        self.termina(processo, 130)
        barre = [b for b in mostrato.split("\r") if b.strip("\x1b[K")]
        for barra in barre:
            self.assertRegex(barra, r"^\x1b\[K\[#*-*\] +\d+ %  [\d.]+ tenute  resta \d\d+:\d\d:\d\d$")
        tenute = [int(re.search(r"([\d.]+) tenute", b)[1].replace(".", "")) for b in barre]
        self.assertEqual(tenute, sorted(tenute))
        self.assertGreater(tenute[0], 0)
        self.assertTrue(mostrato.endswith("\r\x1b[K"), "the bar is wiped away at the end")
        self.confronta(comune.json.loads(self.leggi("uscita.json"))["sviluppate"])

    def test_ctrl_c_dal_terminale(self):
        # The terminal itself sends the signal, to a process that has it as its own.
        capo, coda = pty.openpty()
        self.addCleanup(os.close, capo)
        processo = self.apri("sviluppa", self.sistema, "-o", "prova.col", stdin=coda, stderr=coda,
                             start_new_session=True, preexec_fn=lambda: os.close(os.open(os.ttyname(coda), os.O_RDWR)))
        os.close(coda)
        comune.leggi_terminale(capo, lambda testo: "tenute" in testo)
        os.write(capo, b"\x03")
        comune.leggi_terminale(capo, lambda testo: False)
        uscita, _ = self.termina(processo, 130)
        self.assertIn("Interrotto", uscita)

    def test_niente_barra_per_una_corsa_breve(self):
        capo, coda = pty.openpty()
        self.addCleanup(os.close, capo)
        breve = self.crea(sistema([1, 2, 3], 2), "breve.sic")
        processo = self.apri("sviluppa", breve, "-o", "prova.col", stderr=coda)
        os.close(coda)
        self.assertEqual(comune.leggi_terminale(capo, lambda testo: False), "")
        self.termina(processo, 0)


if __name__ == "__main__":
    comune.avvia()
