# uso_prova.py - the command line itself: help, wrong use, streams that are closed.

import os
import signal
import subprocess
import unittest

import comune
from comune import Prova
from definizioni import Verifica, in_byte, pari, peso, sistema, sviluppa

VERSIONE = r"^ordavel \d+\.\d+\.\d+ \(nucleo (comune|avx2|avx512)\)\n$"
COMANDI = ("crea", "mostra", "sviluppa", "filtra", "misura")


class Uso(Prova):
    def test_aiuto(self):
        uscita, messaggi = self.esegui("--help")
        self.assertEqual(messaggi, "")
        for parola in COMANDI:
            self.assertIn(parola, uscita)

    def test_aiuto_di_ogni_comando(self):
        for comando, parole in zip(COMANDI, (["CELLE", "SISTEMA"], ["--json"], ["--temp", "--gioco", "--json", "-o"],
                                             ["--da", "-o"], ["CLASSE"])):
            with self.subTest(comando):
                uscita, _ = self.esegui(comando, "--help")
                for parola in parole:
                    self.assertIn(parola, uscita)

    def test_versione_in_una_riga(self):
        self.assertRegex(self.esegui("--version")[0], VERSIONE)

    def test_uso_sbagliato(self):
        self.crea(sistema([1, 2, 3], 2))
        for parole, dice in (
                ("", "manca il comando"), ("sviluppo a.sic -o b.col", 'forse "sviluppa"'), ("mostr a", 'forse "mostra"'),
                ("--nulla", "--nulla"), ("mostra", "SISTEMA"), ("mostra prova.sic altro.sic", "altro.sic"),
                ("mostra prova.sic --jsn", "--jsn"), ("crea", "CELLE"), ("crea solo.json", "SISTEMA"),
                ("sviluppa prova.sic", "-o"), ("sviluppa prova.sic -o", "-o"), ("sviluppa -o a.col", "SISTEMA"),
                ("sviluppa prova.sic -o a.col -o b.col", "-o"), ("filtra prova.sic -o a.col", "--da"),
                ("filtra prova.sic --da a.col", "-o"), ("sviluppa prova.sic -o a.col --da b.col", "--da"),
                ("sviluppa prova.sic -o a.col --gioco Bingo", "SuperEnalotto"), ("misura", "CLASSE")):
            with self.subTest(parole):
                uscita, messaggi = self.rifiuta(*parole.split(), atteso=2, intatti=["prova.sic"])
                self.assertEqual(uscita, "")
                self.assertTrue(messaggi.startswith("errore: uso: "), messaggi)
                # An option may be named by its short word or its long one.
                self.assertTrue(dice in messaggi or (dice == "-o" and "--uscita" in messaggi), messaggi)


class Canali(Prova):
    """Standard streams that are closed, full or without a reader."""

    def setUp(self):
        super().setUp()
        self.condizioni = [peso([1, 2], range(3, 90)), pari({1})] * 150
        self.sistema = self.crea(sistema(range(1, 13), 3, self.condizioni))
        self.attese = in_byte(sviluppa(range(1, 13), 3, Verifica(self.condizioni)))

    def senza_lettore(self, *parole):
        """Runs the program with a standard output that nobody reads."""
        lettura, scrittura = os.pipe()
        os.close(lettura)
        try:
            _, messaggi = self.esegui(*parole, atteso=-signal.SIGPIPE, stdout=scrittura)
        finally:
            os.close(scrittura)
        self.assertEqual(messaggi, "", "it ends in silence, as programs in a pipe do")

    def test_uscita_senza_lettore(self):
        for parole in (["mostra", self.sistema], ["mostra", self.sistema, "--json"], ["--help"],
                       ["misura", 2, 1, 2], ["sviluppa", self.sistema, "-o", "prova.col", "--json"]):
            with self.subTest(str(parole)):
                self.senza_lettore(*parole)
        self.assertEqual(self.leggi("prova.col"), self.attese)

    def test_lettore_che_se_ne_va(self):
        processo = self.apri("mostra", self.sistema, "--json")
        self.assertEqual(processo.stdout.read(1), b"{")
        processo.stdout.close()
        processo.stdout = None
        self.assertIn(processo.wait(comune.SECONDI_MASSIMI), (0, -signal.SIGPIPE))
        self.termina(processo, processo.returncode)

    def test_uscita_piena(self):
        for parole in (["mostra", self.sistema], ["misura", 2, 1, 2], ["sviluppa", self.sistema, "-o", "prova.col"]):
            with self.subTest(str(parole)), open("/dev/full", "wb") as piena:
                _, messaggi = self.esegui(*parole, atteso=1, stdout=piena)
                self.assertIn("errore: ", messaggi)
        self.assertEqual(self.leggi("prova.col"), self.attese)

    def test_canali_chiusi(self):
        byte = self.leggi(self.sistema)
        self.esegui("sviluppa", self.sistema, "-o", "prova.col", atteso=1, stdin=None, stdout=None, stderr=None,
                    preexec_fn=lambda: os.closerange(0, 3))
        self.assertEqual(self.leggi("prova.col"), self.attese)
        self.assertEqual(self.leggi(self.sistema), byte)

    def test_messaggi_chiusi_non_finiscono_nei_file(self):
        # The warning is written while a file may be open; it must not become its content.
        self.scrivi("mozza.col", self.attese + b"xyz")
        self.esegui("filtra", self.sistema, "--da", "mozza.col", "-o", "prova.col", stderr=None,
                    preexec_fn=lambda: os.close(2))
        self.assertEqual(self.leggi("prova.col"), self.attese)
        self.assertEqual(self.leggi("mozza.col"), self.attese + b"xyz")

    def test_righe_intere_in_un_tubo(self):
        primo = self.apri("mostra", self.sistema, stderr=subprocess.DEVNULL)
        testa = subprocess.run(["head", "-n", "1"], stdin=primo.stdout, capture_output=True, check=True)
        primo.stdout.close()
        primo.stdout = None
        self.assertIn(primo.wait(comune.SECONDI_MASSIMI), (0, -signal.SIGPIPE))
        self.assertIn("Classe 3", testa.stdout.decode())
        self.assert_niente_avanzi()


if __name__ == "__main__":
    comune.avvia()
