# conta_prova.py - "ordavel conta" against developments worked out here, and what it does while a count is long.

import os
import pty
import signal
import unittest
from math import comb

import comune
from comune import Prova
from definizioni import (LinkClose, LinkOpen, Verifica, ampiezza, consecutivi, dispari, pari, peso, punti_colonna,
                         resto_di, sistema, sviluppa)

NUMERI = [1, 2, 3, 5, 8, 13, 14, 21, 34, 35, 55, 56, 57, 89]
# No pair of numbers that add up to 91: what no short way counts.
SENZA_SPECCHI = {"classe": 10, "numeri": list(range(1, 91)), "righe": [["SimmetrieNum", "", "0", "", ""]]}


class Conta(Prova):
    def confronta(self, numeri, classe, condizioni=(), quadro=(), riduzione=0):
        """Counts, and works out what a development would keep before it thins. Gives the object that was printed."""
        verifica = Verifica(condizioni, quadro)
        attese = sviluppa(numeri, classe, verifica)
        nome = self.crea(sistema(numeri, classe, condizioni, quadro, riduzione))
        esito, messaggi = self.esegui_json("conta", nome)
        self.assertEqual(messaggi, "")
        self.assertEqual((esito["passano"], esito["errore"], esito["esatto"]), (len(attese), 0, True))
        self.assertEqual(esito["integrali"], comb(len(numeri), classe))
        self.assertFalse(esito["interrotto"])
        self.assertEqual([c["nome"] for c in esito["condizioni"]], [c.celle[0] for c in condizioni])
        for contatore in ("ok", "ko", "rec"):
            contati = [c[contatore] for c in esito["condizioni"]]
            self.assertEqual(contati, [getattr(verifica, contatore)[i] for i in range(len(condizioni))], contatore)
        self.assertTrue(all(c["esatto"] for c in esito["condizioni"]))
        return esito

    def test_senza_condizioni(self):
        esito = self.confronta([20, 3, 12, 7], 2)
        self.assertEqual(esito["passano"], 6)

    def test_condizioni_insieme_anche_con_la_riduzione(self):
        condizioni = [peso([1, 2, 3, 4, 5], range(80, 221)), pari({1, 2, 3}), consecutivi({0, 1}),
                      punti_colonna([2, 8, 14, 34, 56], {1, 2}), resto_di(4, {0, 1, 3})]
        for riduzione in (0, 2):
            esito = self.confronta(NUMERI, 5, condizioni, riduzione=riduzione)
            self.assertTrue(0 < esito["passano"] < esito["integrali"])

    def test_recupero_e_link(self):
        self.confronta(NUMERI, 4, [peso([1, 2, 3, 4], range(100, 161), range(90, 100), 1), pari({2}, {1}, 1), LinkOpen(),
                                   dispari({2, 3}), ampiezza(range(30, 60)), consecutivi({0}), LinkClose(1, 2)],
                       [(1, 1, True)])

    def test_novanta_numeri_in_classe_dieci(self):
        nome = self.crea(sistema(range(1, 91), 10, [peso(list(range(1, 11)), range(425, 486)), dispari({3}),
                                                    consecutivi({0, 1})]))
        esito, _ = self.esegui_json("conta", nome)
        self.assertEqual(esito["passano"], 158402076833)
        self.assertEqual([c["ok"] for c in esito["condizioni"]], [1718524206917, 643936807800, 4226382916470])

    def test_non_scrive_niente(self):
        nome = self.crea(sistema(NUMERI, 5, [pari({2})]))
        prima = self.leggi(nome)
        elenco = sorted(os.listdir(self.cartella))
        self.esegui("conta", nome)
        self.assertEqual(self.leggi(nome), prima)
        self.assertEqual(sorted(os.listdir(self.cartella)), elenco)

    def test_testo_per_chi_legge(self):
        uscita, messaggi = self.esegui("conta", self.crea(sistema(range(1, 21), 5, [dispari({3}), LinkOpen(),
                                                                                  pari({2}), LinkClose(1)])))
        self.assertEqual(messaggi, "")
        self.assertRegex(uscita, r"(?m)^  Colonne integrali +15\.504$")
        self.assertRegex(uscita, r"(?m)^  Colonne che passano +5\.400  34,8 %$")
        self.assertRegex(uscita, r"(?m)^  1  Pari-Dispari +5\.400 +34,8 % +10\.104 +65,2 % +-$")
        self.assertRegex(uscita, r"(?m)^  2  LinkOpen +- +-")

    def test_stima(self):
        nome = self.crea(SENZA_SPECCHI)
        for opzioni in ([], ["--solo-stima"]):
            esito, messaggi = self.esegui_json("conta", nome, *opzioni)
            self.assertEqual(messaggi, "")
            self.assertFalse(esito["esatto"])
            vero = comb(45, 10) * 2 ** 10
            self.assertLess(abs(esito["passano"] - vero), 2 * esito["errore"])
            self.assertEqual((esito["condizioni"][0]["ok"], esito["condizioni"][0]["esatto"]), (vero, True))
        uscita, _ = self.esegui("conta", nome, "--solo-stima")
        self.assertRegex(uscita, r"(?m)^  Colonne che passano +circa [\d.]+ ± [\d.]+  \d+,\d %$")

    def test_emulatore_senza_archivio(self):
        limiti = "".join(f"P{p}) 0 - 99\r\n" for p in range(6))
        nome = self.crea({"classe": 5, "numeri": list(range(1, 13)),
                          "righe": [["Emulatore", "[20]\r\n" + limiti, "", "", ""]]})
        uscita, messaggi = self.esegui_json("conta", nome)
        self.assertEqual(messaggi, "avviso: Filtro emulatore non creato\n")
        self.assertEqual((uscita["passano"], uscita["esatto"]), (792, True))

    def test_rifiuti(self):
        self.rifiuta("conta", "manca.sic", dice="manca.sic")
        guasto = self.crea(sistema(NUMERI, 5, [resto_di(20, {1})]), "guasto.sic")
        self.rifiuta("conta", guasto, dice="condizione 1 Resto", intatti=[guasto])
        aperto = self.scrivi("aperto.json", sistema(NUMERI, 5, [LinkOpen()]))
        self.esegui("crea", aperto, "aperto.sic")
        self.rifiuta("conta", "aperto.sic", dice="Link non valide")
        self.rifiuta("conta", guasto, "--gioco", "Bingo", atteso=2, dice="SuperEnalotto")
        self.rifiuta("conta", guasto, "--ruota", "Rome", atteso=2, dice='forse "Roma"')
        self.rifiuta("conta", atteso=2, dice="SISTEMA")


class ContaLunga(Prova):
    def setUp(self):
        super().setUp()
        # 1473109704 columns that must be walked through: no machine is done before it is stopped.
        self.sistema = self.crea({**SENZA_SPECCHI, "classe": 7, "numeri": list(range(1, 73))})

    def test_la_stima_sul_terminale_e_poi_lo_stop(self):
        capo, coda = pty.openpty()
        self.addCleanup(os.close, capo)
        processo = self.apri("conta", self.sistema, "--json", stderr=coda)
        os.close(coda)
        mostrato = comune.leggi_terminale(capo, lambda testo: "in corso" in testo)
        self.assertRegex(mostrato, r"Passano circa [\d.]+ ± [\d.]+ colonne; il conto esatto è in corso")
        processo.send_signal(signal.SIGINT)
        mostrato += comune.leggi_terminale(capo, lambda testo: False)
        self.assertTrue(mostrato.endswith("\r\x1b[K"), "it is wiped away at the end")
        uscita, _ = self.termina(processo, 130)
        esito = comune.json.loads(uscita)
        self.assertTrue(esito["interrotto"])
        self.assertFalse(esito["esatto"])
        self.assertGreater(esito["passano"], esito["errore"])
        self.assertTrue(esito["condizioni"][0]["esatto"])


if __name__ == "__main__":
    comune.avvia()
