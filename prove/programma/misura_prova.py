# misura_prova.py - "ordavel misura": every metric of one column.

import unittest

import comune
from comune import Prova


class Misura(Prova):
    def misura(self, *numeri):
        misure, messaggi = self.esegui_json("misura", len(numeri), *numeri)
        self.assertEqual(messaggi, "")
        return misure

    def test_la_colonna_1_2_3_5_8(self):
        misure = self.misura(1, 2, 3, 5, 8)
        attese = {"CalcolaAmpiezza": 7, "CalcolaDistanzaMinima": 1, "CalcolaDistanzaMassima": 3,
                  "CalcolaConsecutivi": 2, "CalcolaPonte": 1, "CalcolaInterruzioni": 2, "CalcolaConsecutiviPD": 1,
                  "CalcolaInterruzioniPD": 3, "SommaColonna": 19, "CalcolaBaricentro": 4, "Baricentro": 3}
        self.assertEqual({nome: misure[nome] for nome in attese}, attese)

    def test_ordine_in_cui_si_scrivono_i_numeri(self):
        self.assertEqual(self.misura(8, 3, 1, 5, 2), self.misura(1, 2, 3, 5, 8))

    def test_numero_solo(self):
        misure = self.misura(90)
        attese = {"CalcolaAmpiezza": 0, "CalcolaDistanzaMinima": 1000, "CalcolaDistanzaMassima": 0,
                  "CalcolaConsecutivi": 0, "CalcolaVorticeDiretto": 0, "CalcolaFigure": 1, "SommaColonna": 90}
        self.assertEqual({nome: misure[nome] for nome in attese}, attese)

    def test_venti_numeri(self):
        misure = self.misura(*range(1, 21))
        self.assertEqual((misure["SommaColonna"], misure["CalcolaConsecutivi"]), (210, 19))

    def test_misure_con_parametri(self):
        self.assertEqual(self.misura(2, 3, 4)["CalcolaFulcro"]["Pari"], 2)
        self.assertEqual(self.misura(30, 31, 60, 61)["CalcolaFormule"], [1, 2, 1])
        self.assertEqual(self.misura(5, 9, 45)["CalcolaSommaComplessiva"], 33)
        self.assertEqual(self.misura(1, 46, 90)["CalcolaSimmetrieNum"], 1)
        self.assertEqual(self.misura(1, 46, 90)["CalcolaParalleliNum"], 1)
        self.assertEqual(self.misura(1, 2, 3, 7, 8)["CalcolaGruppiDiConsecutivi"]["3"], 1)
        self.assertEqual(self.misura(1, 2, 5, 8, 11, 14)["ContaPuntiColonna"], {"Pari": 3, "Dispari": 3})
        self.assertEqual(self.misura(1, 3, 4)["Resto"]["5"], 3)
        self.assertEqual(self.misura(4, 77)["Posizioni"], {"1": 4, "2": 77})

    def test_vortice(self):
        # Parities 1, 1, 0, 0, 1, 0.
        vortice = self.misura(1, 3, 4, 6, 7, 8)["CalcolaVortice"]
        self.assertEqual((vortice["Diretto"]["Pos"], vortice["Diretto"]["Vortici"]), (2, 2))
        self.assertEqual((vortice["Inverso"]["Pos"], vortice["Inverso"]["Vortici"]), (4, 1))

    def test_testo_per_chi_legge(self):
        uscita, messaggi = self.esegui("misura", 5, 1, 2, 3, 5, 8)
        self.assertEqual(messaggi, "")
        self.assertRegex(uscita, r"(?m)^ *SommaColonna +19$")
        self.assertRegex(uscita, r"(?m)^ *CalcolaBaricentro +4$")
        for nome in self.misura(1, 2, 3, 5, 8):
            self.assertIn(nome, uscita)

    def test_numeri_sbagliati(self):
        for parole in ("5 1 2 3 5", "5 1 2 3 5 8 13", "0 1", "21 1", "-1 1", "2 0 1", "2 1 91", "2 7 7", "2 1 due",
                       "2 1 2.5", "70000 1", "2 1 99999999999999999999", "x 1", "5", ""):
            with self.subTest(parole):
                uscita, _ = self.rifiuta("misura", *parole.split(), atteso=2, dice="errore: uso: ")
                self.assertEqual(uscita, "")


if __name__ == "__main__":
    comune.avvia()
