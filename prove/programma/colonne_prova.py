# colonne_prova.py - "ordavel esporta" and "ordavel vedi": the columns of a file as text.

import os
import signal
import time
import unittest
from itertools import combinations

import comune
from comune import Prova
from definizioni import in_byte

# So many columns that no machine is through before it is stopped.
TANTE = 2_000_000_000

TRE = [(3, 11, 90), (1, 2, 3, 4, 5), (7,)]


def in_testo(colonne):
    """The text of columns: two digits a number, CR LF behind each line."""
    return "".join(" ".join(f"{n:02}" for n in colonna) + "\r\n" for colonna in colonne).encode()


class Esporta(Prova):
    def esporta(self, colonne):
        """Exports columns and compares every byte."""
        self.scrivi("prova.col", in_byte(colonne))
        uscita, messaggi = self.esegui("esporta", "prova.col", "prova.txt")
        self.assertEqual(messaggi, "")
        self.assertEqual(self.leggi("prova.txt"), in_testo(colonne))
        self.assertEqual(self.leggi("prova.col"), in_byte(colonne))
        return uscita

    def test_ogni_byte(self):
        self.assertEqual(self.esporta(TRE), "prova.txt: 3 colonne\n")

    def test_attorno_ai_blocchi(self):
        tutte = list(combinations(range(1, 40), 3))
        for quante in (1, 999, 1000, 1001, 9139):
            with self.subTest(quante):
                self.esporta(tutte[:quante])

    def test_quantita_coi_punti(self):
        self.assertEqual(self.esporta([(1, 2)] * 1234), "prova.txt: 1.234 colonne\n")

    def test_file_vuoto(self):
        self.assertEqual(self.esporta([]), "prova.txt: 0 colonne\n")

    def test_ultimo_pezzo_arrotondato(self):
        for byte, righe in ((10, 0), (11, 1), (50, 2), (51, 3)):
            with self.subTest(byte):
                self.scrivi("mozza.col", in_byte([(5, 6)] * 3)[:byte])
                self.esegui("esporta", "mozza.col", "mozza.txt")
                self.assertEqual(self.leggi("mozza.txt"), in_testo([(5, 6)] * righe))

    def test_file_vecchio_sostituito(self):
        self.scrivi("prova.txt", b"x" * 10000)
        self.esporta(TRE)

    def test_collegamento_resta_tale(self):
        self.scrivi("vero.txt", b"vecchio")
        os.symlink("vero.txt", self.cartella / "prova.txt")
        self.esporta(TRE)
        self.assertTrue((self.cartella / "prova.txt").is_symlink())
        self.assertEqual(self.leggi("vero.txt"), in_testo(TRE))

    def test_nomi_strani(self):
        for nome in ("à è.txt", "a*b.txt", "-", "senza"):
            with self.subTest(nome):
                self.scrivi("prova.col", in_byte(TRE))
                self.scrivi("aab.txt", b"resta")
                self.esegui("esporta", "--", "prova.col", nome)
                self.assertEqual(self.leggi(nome), in_testo(TRE))
                self.assertEqual(self.leggi("aab.txt"), b"resta")

    def test_sorgente_di_sola_lettura(self):
        opzioni = self.senza_privilegi()
        self.scrivi("prova.col", in_byte(TRE))
        (self.cartella / "prova.col").chmod(0o444)
        self.esegui("esporta", "prova.col", "prova.txt", **opzioni)
        self.assertEqual(self.leggi("prova.txt"), in_testo(TRE))


class Rifiuti(Prova):
    def setUp(self):
        super().setUp()
        self.scrivi("prova.col", in_byte(TRE))
        self.scrivi("vecchio.txt", b"vecchio")

    def rifiuta_esporta(self, colonne, testo, dice, **opzioni):
        uscita, _ = self.rifiuta("esporta", colonne, testo, dice=dice, intatti=["prova.col", "vecchio.txt"], **opzioni)
        self.assertEqual(uscita, "")

    def test_sorgente_che_non_si_legge(self):
        os.mkfifo(self.cartella / "tubo")
        (self.cartella / "cartella").mkdir()
        for nome in ("manca.col", "manca/manca.col", "tubo", "cartella", "/dev/zero"):
            with self.subTest(nome):
                self.rifiuta_esporta(nome, "vecchio.txt", ["errore: ", nome])

    def test_sorgente_che_si_legge_solo_con_permesso(self):
        opzioni = self.senza_privilegi()
        self.scrivi("segreta.col", in_byte(TRE))
        (self.cartella / "segreta.col").chmod(0)
        self.rifiuta_esporta("segreta.col", "vecchio.txt", "Permesso negato: segreta.col", **opzioni)

    def test_uscita_che_non_si_scrive(self):
        (self.cartella / "cartella").mkdir()
        for nome in ("cartella", "manca/a.txt", "/dev/null", ""):
            with self.subTest(nome):
                self.rifiuta_esporta("prova.col", nome, "errore: ")

    def test_uscita_senza_permesso(self):
        opzioni = self.senza_privilegi()
        (self.cartella / "vecchio.txt").chmod(0o444)
        self.rifiuta_esporta("prova.col", "vecchio.txt", "vecchio.txt", **opzioni)

    def test_la_sorgente_non_si_sovrascrive(self):
        os.symlink("prova.col", self.cartella / "altra.txt")
        os.link(self.cartella / "prova.col", self.cartella / "stessa.txt")
        for nome in ("prova.col", "./prova.col", "altra.txt", "stessa.txt"):
            with self.subTest(nome):
                self.rifiuta_esporta("prova.col", nome, "è il file da leggere")

    def test_disco_pieno(self):
        self.scrivi("molte.col", in_byte(TRE) * 2000)
        self.rifiuta_esporta("molte.col", "vecchio.txt", "Disco pieno", preexec_fn=comune.limita_file)
        self.rifiuta_esporta("molte.col", "nuovo.txt", ["Disco pieno", "nuovo.txt"], preexec_fn=comune.limita_file)

    def test_disco_piccolo(self):
        posto = self.monta_disco("disco", 65536)
        self.scrivi("molte.col", in_byte(TRE) * 20000)
        self.rifiuta_esporta("molte.col", posto / "a.txt", "Disco pieno")
        self.assertEqual(os.listdir(posto), [])

    def test_troppe_colonne_per_contarle(self):
        with open(self.cartella / "enorme.col", "wb") as file:
            file.truncate(20 << 31)
        self.rifiuta_esporta("enorme.col", "vecchio.txt", "6- ")
        self.rifiuta("vedi", "enorme.col", dice="6- ")

    def test_uso_sbagliato(self):
        for parole in ("esporta", "esporta prova.col", "esporta prova.col a.txt b.txt", "vedi", "vedi prova.col --da 0",
                       "vedi prova.col --quante 0", "vedi prova.col --da -3", "vedi prova.col --da x",
                       "vedi prova.col --da 99999999999", "vedi prova.col altra.col"):
            with self.subTest(parole):
                uscita, messaggi = self.rifiuta(*parole.split(), atteso=2)
                self.assertEqual(uscita, "")
                self.assertTrue(messaggi.startswith("errore: uso: "), messaggi)


class Interruzione(Prova):
    def setUp(self):
        super().setUp()
        # Of zeros, which take no room on the disk.
        with open(self.cartella / "rada.col", "wb") as file:
            file.truncate(20 * TANTE)

    def aspetta_righe(self, processo):
        """Waits until the export has written something beside its output."""
        fine = time.monotonic() + comune.SECONDI_MASSIMI
        while not any(p.stat().st_size for p in self.cartella.glob(".ordavel-*")):
            self.assertIsNone(processo.poll(), "the export has ended by itself")
            self.assertLess(time.monotonic(), fine)
            time.sleep(0.01)

    def test_restano_le_righe_scritte(self):
        for segnale in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(segnale):
                self.scrivi("prova.txt", b"vecchio")
                processo = self.apri("esporta", "rada.col", "prova.txt")
                self.aspetta_righe(processo)
                processo.send_signal(segnale)
                uscita, messaggi = self.termina(processo, 130)
                self.assertEqual((uscita, messaggi), ("prova.txt: interrotto\n", ""))
                scritto = self.leggi("prova.txt")
                self.assertEqual(scritto, b"\r\n" * (len(scritto) // 2))
                self.assertLess(1000, len(scritto) // 2)
                self.assertLess(len(scritto) // 2, TANTE)

    def test_vedi_si_interrompe(self):
        processo = self.apri("vedi", "rada.col", "--quante", TANTE)
        inizio = os.read(processo.stdout.fileno(), 1000).decode()
        processo.send_signal(signal.SIGINT)
        uscita, messaggi = self.termina(processo, 130)
        self.assertEqual(messaggi, "")
        righe = (inizio + uscita).splitlines()
        self.assertLess(len(righe), TANTE)
        self.assertEqual(righe[-1].strip(), f"{len(righe):,}".replace(",", "."), "the last line is a whole one")


class Vedi(Prova):
    def setUp(self):
        super().setUp()
        self.colonne = list(combinations(range(1, 25), 3))
        self.scrivi("prova.col", in_byte(self.colonne))

    def vedi(self, *opzioni):
        uscita, messaggi = self.esegui("vedi", "prova.col", *opzioni)
        self.assertEqual(messaggi, "")
        return [tuple(riga.split("  ", 1)) for riga in map(str.strip, uscita.splitlines())]

    def attese(self, da, a):
        return [(f"{n:,}".replace(",", "."), " ".join(f"{x:02}" for x in self.colonne[n - 1])) for n in range(da, a + 1)]

    def test_le_prime_ventuno(self):
        self.assertEqual(self.vedi(), self.attese(1, 21))

    def test_da_e_quante(self):
        for da, quante in ((1, 1), (990, 20), (2000, 24), (1, 2024)):
            with self.subTest((da, quante)):
                self.assertEqual(self.vedi("--da", da, "--quante", quante), self.attese(da, da + quante - 1))

    def test_vicino_alla_fine_ce_ne_sono_meno(self):
        for da in (2010, 2024):
            with self.subTest(da):
                self.assertEqual(self.vedi("--da", da, "--quante", 2 ** 31 - 1), self.attese(da, 2024))

    def test_i_numeri_sono_incolonnati(self):
        uscita, _ = self.esegui("vedi", "prova.col", "--da", 99, "--quante", 2)
        self.assertEqual(uscita, " 99  01 06 23\n100  01 06 24\n")

    def test_oltre_la_fine(self):
        self.rifiuta("vedi", "prova.col", "--da", 2025, dice="il file ha 2.024 colonne")

    def test_file_vuoto(self):
        self.rifiuta("vedi", self.scrivi("vuoto.col", b""), dice="il file ha 0 colonne")

    def test_file_che_non_si_legge(self):
        (self.cartella / "cartella").mkdir()
        for nome in ("manca.col", "cartella", "/dev/zero"):
            with self.subTest(nome):
                self.rifiuta("vedi", nome, dice=["errore: ", nome])

    def test_file_rado_grande(self):
        with open(self.cartella / "rada.col", "wb") as file:
            file.truncate(20 * 99_999_999)
            file.seek(0, os.SEEK_END)
            file.write(in_byte([(7, 8, 9)]))
        uscita, _ = self.esegui("vedi", "rada.col", "--da", 100_000_000)
        self.assertEqual(uscita, "100.000.000  07 08 09\n")
        self.assertEqual(self.esegui("vedi", "rada.col", "--quante", 2)[0], "1  \n2  \n")

    def test_lettore_che_se_ne_va(self):
        processo = self.apri("vedi", "prova.col", "--quante", 2024)
        self.assertEqual(processo.stdout.read(1), b" ")
        processo.stdout.close()
        processo.stdout = None
        self.assertIn(processo.wait(comune.SECONDI_MASSIMI), (0, -signal.SIGPIPE))
        self.termina(processo, processo.returncode)

    def test_senza_lettore(self):
        lettura, scrittura = os.pipe()
        os.close(lettura)
        try:
            _, messaggi = self.esegui("vedi", "prova.col", "--quante", 2024, atteso=-signal.SIGPIPE, stdout=scrittura)
        finally:
            os.close(scrittura)
        self.assertEqual(messaggi, "")

    def test_uscita_piena(self):
        with open("/dev/full", "wb") as piena:
            _, messaggi = self.esegui("vedi", "prova.col", atteso=1, stdout=piena)
        self.assertIn("errore: ", messaggi)


if __name__ == "__main__":
    comune.avvia()
