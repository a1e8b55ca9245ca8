# esterno_prova.py - "ordavel sviluppa --motore esterno": with a played library, without one, with the real one.
#
# The library is looked for beside the program: a copy of it stands beside the one that is wanted.

import os
import shutil
import signal
import sys
import time
import unittest
from pathlib import Path

import comune
from comune import Prova
from definizioni import in_byte, pari, peso, sistema

MANCA = "53- File non trovato: TorvanSvilSist: il motore esterno è la libreria TorvanSvilSist"


class Copia(Prova):
    """The program in a folder of its own, beside the library that is wanted there."""

    libreria = None

    def setUp(self):
        super().setUp()
        posto = self.radice / "programma"
        posto.mkdir()
        vero = comune.PROGRAMMA
        shutil.copy(vero, posto / "ordavel")
        if self.libreria:
            shutil.copy(self.libreria(), posto / "TorvanSvilSist.so")
        self.addCleanup(setattr, comune, "PROGRAMMA", vero)
        comune.PROGRAMMA = str(posto / "ordavel")
        self.condizioni = [pari({0, 1, 2, 3}), peso([1, 2, 3], range(6, 200))]
        self.sistema = self.crea(sistema(range(1, 6), 3, self.condizioni))

    def finto(self, modo):
        return {"env": {"ORDAVEL_FINTO": modo, "ORDAVEL_FINTO_REGISTRO": str(self.cartella / "registro.txt")}}

    def sviluppa(self, modo="", **opzioni):
        return self.esegui("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno", **self.finto(modo),
                           **opzioni)


class Esterno(Copia):
    libreria = staticmethod(lambda: FINTA)

    def test_le_colonne_e_i_conti_sono_della_libreria(self):
        esito, messaggi = self.esegui_json("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno",
                                           **self.finto(""))
        self.assertEqual(messaggi, "")
        self.assertEqual(self.leggi("prova.col"), in_byte([(1, 2, 3), (2, 3, 4), (3, 4, 5)]))
        self.assertEqual((esito["integrali"], esito["sviluppate"], esito["condizionate"], esito["interrotto"]),
                         (10, 30, 3, False))
        self.assertEqual([(c["nome"], c["ko"], c["ok"], c["rec"]) for c in esito["condizioni"]],
                         [("Pari-Dispari", 101, 102, 103), ("Peso", 201, 202, 203)])
        cartella, consegna, emulatore = self.leggi("registro.txt").decode().splitlines()
        self.assertTrue(cartella.startswith(str(self.temp)) and cartella.endswith("/"), cartella)
        self.assertEqual((consegna, emulatore), (cartella + "Sviluppo.sic", "-"))

    def test_tabella_per_chi_legge(self):
        uscita, _ = self.sviluppa()
        self.assertIn("prova.col", uscita)
        self.assertIn("202", uscita)

    def test_cartella_temporanea_con_spazi_e_accenti(self):
        for nome in ("così è più", "così è più/", "nuova/cartella"):
            with self.subTest(nome):
                self.esegui("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno", "--temp", nome,
                            **self.finto(""))
                self.assertEqual(len(self.leggi("prova.col")), 60)
                self.assertEqual(os.listdir(self.cartella / nome), [])

    def test_l_interno_non_la_chiama(self):
        for opzioni in ([], ["--motore", "interno"]):
            with self.subTest(opzioni):
                self.esegui("sviluppa", self.sistema, "-o", "prova.col", *opzioni, **self.finto(""))
                self.assertEqual(len(self.leggi("prova.col")), 200)
        self.esegui("filtra", self.sistema, "--da", "prova.col", "-o", "meno.col", **self.finto(""))
        self.assertEqual(self.leggi("meno.col"), self.leggi("prova.col"))
        self.assertFalse((self.cartella / "registro.txt").exists())

    def test_parole_sbagliate(self):
        self.scrivi("a.col", b"")
        for parole in (("sviluppa", self.sistema, "-o", "prova.col", "--motore", "altro"),
                       ("filtra", self.sistema, "--da", "a.col", "-o", "prova.col", "--motore", "esterno")):
            with self.subTest(parole):
                self.rifiuta(*parole, atteso=2, dice="--motore")

    def fallisce(self, modo, dice):
        self.scrivi("prova.col", b"vecchio")
        _, messaggi = self.sviluppa(modo, atteso=1)
        self.assertIn(dice, messaggi)
        self.assertEqual(self.leggi("prova.col"), b"vecchio")

    def test_le_ragioni_della_libreria_si_mostrano(self):
        self.fallisce("errore", "il motore esterno dice: Memoria insufficiente alla condizione 3\n")

    def test_chi_rinuncia_in_silenzio_ha_fallito(self):
        self.fallisce("rinuncia", "il motore esterno non ha scritto le colonne")

    def test_un_sistema_che_non_torna_ha_fallito(self):
        self.fallisce("togli", "OrdavelSis.Apri: 53- File non trovato")

    def interrompi(self, *segnali):
        processo = self.apri("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno", "--json",
                             **self.finto("lento"))
        fine = time.monotonic() + comune.SECONDI_MASSIMI
        while not (self.cartella / "registro.txt").exists():
            self.assertIsNone(processo.poll())
            self.assertLess(time.monotonic(), fine)
            time.sleep(0.01)
        for segnale in segnali:
            processo.send_signal(segnale)
        uscita, messaggi = self.termina(processo, 130)
        self.assertEqual(messaggi, "")
        (self.cartella / "registro.txt").unlink()
        return comune.json.loads(uscita)

    def test_uno_stop_tiene_le_colonne(self):
        for segnali in ([signal.SIGINT], [signal.SIGTERM], [signal.SIGINT, signal.SIGTERM]):
            with self.subTest(str(segnali)):
                esito = self.interrompi(*segnali)
                self.assertTrue(esito["interrotto"])
                self.assertEqual(esito["condizionate"], 1)
                self.assertEqual(self.leggi("prova.col"), in_byte([(1, 2, 3)]))

    def test_uno_stop_che_viene_prima_della_libreria(self):
        # Sent as soon as the program may have taken over the signals; whenever it comes, the run ends.
        for attesa in (0.02, 0.04, 0.06, 0.1):
            processo = self.apri("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno",
                                 **self.finto("lento"))
            time.sleep(attesa)
            processo.send_signal(signal.SIGINT)
            processo.communicate(timeout=comune.SECONDI_MASSIMI)
            self.assertIn(processo.returncode, (130, -signal.SIGINT))
            shutil.rmtree(self.temp)
            self.temp.mkdir()


class SenzaLibreria(Copia):
    def test_si_dice_che_cosa_fare(self):
        self.scrivi("prova.col", b"vecchio")
        self.rifiuta("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno",
                     intatti=["prova.col", self.sistema], dice=[MANCA, "accanto al programma", "--motore interno"])
        self.esegui("sviluppa", self.sistema, "-o", "prova.col", "--motore", "interno")
        self.assertEqual(len(self.leggi("prova.col")), 200)


class LibreriaMonca(Copia):
    libreria = staticmethod(lambda: MONCA)

    def test_si_dice_quale_funzione_manca(self):
        self.rifiuta("sviluppa", self.sistema, "-o", "prova.col", "--motore", "esterno", intatti=[self.sistema],
                     dice="438- Membro mancante: TorvanSvilSist.GetCondizionate")


class Vera(Prova):
    """The real library gives what the internal engine gives."""

    def setUp(self):
        super().setUp()
        if not Path(comune.PROGRAMMA).with_name("TorvanSvilSist.so").exists():
            self.skipTest("TorvanSvilSist.so is not beside the program")

    def confronta(self, *argomenti, **altri):
        nome = self.crea(sistema(*argomenti, **altri))
        esiti = []
        for motore in ("interno", "esterno"):
            esito, messaggi = self.esegui_json("sviluppa", nome, "-o", motore + ".col", "--motore", motore)
            self.assertEqual(messaggi, "")
            conti = [(c["nome"], c["ok"], c["ko"], c["rec"]) for c in esito["condizioni"]]
            esiti.append((esito["integrali"], esito["sviluppate"], esito["condizionate"], esito["interrotto"], conti))
        self.assertEqual(esiti[1], esiti[0])
        self.assertEqual(self.leggi("esterno.col"), self.leggi("interno.col"))
        self.assertGreater(len(self.leggi("interno.col")), 0)

    def test_come_l_interno(self):
        condizioni = [peso([1, 2, 3], range(30, 91), range(91, 120), 1), pari({1, 2}, {0}, 1)]
        self.confronta(range(1, 31), 5, condizioni)
        self.confronta(range(1, 31), 5, condizioni, [(1, 2, 1)])
        self.confronta(range(1, 31), 4)

    def test_come_l_interno_con_riduzione(self):
        self.confronta(range(1, 25), 6, [pari({2, 3, 4})], riduzione=1)


if __name__ == "__main__":
    MONCA = os.path.abspath(sys.argv.pop(3))
    FINTA = os.path.abspath(sys.argv.pop(2))
    comune.avvia()
