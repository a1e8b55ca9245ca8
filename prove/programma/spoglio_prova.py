# spoglio_prova.py - "ordavel spoglio": columns and conditions against a winning column.

import json
import unittest

import comune
from comune import Prova

COLONNE = [(5, 12, 30, 40, 50), (1, 2, 3, 4, 5), (5, 12, 31, 41, 51), (6, 7, 8, 9, 10)]
SISTEMA = {"classe": 5, "numeri": list(range(1, 61)), "righe": [
    ["Consecutivi", "", "0-1", "", ""], ["Ampiezza", "", "1-40", "-", " "], ["Cadenze", "", "2-3", "", ""]]}


def byte(colonne):
    return b"".join(bytes(c) + bytes(20 - len(c)) for c in colonne)


class Spoglio(Prova):
    def spoglio(self, *opzioni, sistema=None):
        nome = self.crea(SISTEMA if sistema is None else sistema)
        uscita, messaggi = self.esegui("spoglio", nome, "--colonne", self.scrivi("c.col", byte(COLONNE)), "--json", *opzioni)
        self.messaggi = messaggi
        return json.loads(uscita)

    def test_le_tre_pagine(self):
        pagine = self.spoglio("--vincente", "12.5.30.41.60", "--minimo", "1")
        self.assertEqual([(r["Colonna"], r["Punti"]) for r in pagine["vincite"]], [("1", "3"), ("2", "1"), ("3", "3")])
        self.assertEqual(pagine["vincite"][0]["Numeri"], "05 12 30 40 50")
        self.assertEqual([r["Colonne"] for r in pagine["riepilogo"]], ["0", "0", "2", "0", "1"])
        self.assertEqual([(r["Condizione"], r["Punti effettivi"], r["Esito"]) for r in pagine["confronto"]],
                         [("Consecutivi", "0", "Si"), ("Ampiezza", "55", "No"), ("Cadenze", "2", "Si")])
        self.assertEqual(pagine["tagliata_da"], ["2 Ampiezza"])
        self.assertEqual(self.messaggi, "")

    def test_il_minimo_di_partenza_e_quello_del_gioco(self):
        self.assertEqual(len(self.spoglio("--vincente", "1.2.3.4.60")["vincite"]), 1)

    def test_a_parole(self):
        nome = self.crea(SISTEMA)
        colonne = self.scrivi("c.col", byte(COLONNE))
        uscita, _ = self.esegui("spoglio", nome, "--colonne", colonne, "--vincente", "5.12.30.41.60")
        self.assertTrue(uscita.endswith("La colonna vincente non supera: 2 Ampiezza\n"))
        uscita, _ = self.esegui("spoglio", nome, "--colonne", colonne, "--vincente", "5.15.25.31.41")
        self.assertTrue(uscita.endswith("La colonna vincente supera tutte le condizioni\n"))

    def test_taglia_chi_non_e_recuperato_e_un_link_intero(self):
        righe = [["LinkOpen", "", "", "", ""], ["Consecutivi", "", "0-1", "", ""], ["Ampiezza", "", "1-89", "-", " "],
                 ["LinkClose", "", "1", "", ""], ["Consecutivi", "", "3", "0-1", "1"]]
        for quadro, attesi in (([], ["4 LinkClose", "5 Consecutivi"]), (["1,1,-1"], ["4 LinkClose"])):
            pagine = self.spoglio("--vincente", "5.12.30.41.60", sistema={**SISTEMA, "righe": righe, "quadro": quadro})
            self.assertEqual(pagine["tagliata_da"], attesi)
            self.assertEqual([r.get("Esito") for r in pagine["confronto"]], [None, "Si", "Si", None, "Si"])

    def test_un_confronto_che_fallisce_lascia_le_altre_pagine(self):
        nome = self.crea({**SISTEMA, "righe": [["Pari-Dispari", "Pari", "0-5", "", ""]]})
        colonne = self.scrivi("c.col", byte(COLONNE))
        opzioni = ("spoglio", nome, "--colonne", colonne, "--vincente", ".".join(str(2 * i) for i in range(1, 21)))
        uscita, messaggi = self.esegui(*opzioni, "--json", atteso=1)
        self.assertIn("condizione 1 Pari-Dispari", messaggi)
        pagine = json.loads(uscita)
        self.assertEqual([r["Colonna"] for r in pagine["vincite"]], ["1", "2", "4"])
        self.assertIsNone(pagine["tagliata_da"])
        uscita, _ = self.esegui(*opzioni, atteso=1)
        self.assertNotIn("La colonna vincente", uscita)

    def test_le_colonne_che_il_sistema_porta(self):
        nome = self.crea({**SISTEMA, "righe": []})
        with open(self.cartella / nome, "ab") as file:
            file.write(b"COLONNE" + byte(COLONNE))
        uscita, _ = self.esegui("spoglio", nome, "--vincente", "5.12.30.41.60", "--minimo", "3", "--json")
        self.assertEqual([r["Colonna"] for r in json.loads(uscita)["vincite"]], ["1", "3"])

    def test_link_che_non_si_chiudono_con_un_emulatore(self):
        righe = [["Emulatore", "[1]\r\nP0) 0 - 9\r\n", "", "", ""], ["LinkOpen", "", "", "", ""]]
        self.esegui("crea", self.scrivi("l.json", {**SISTEMA, "righe": righe}), "l.sic")
        self.rifiuta("spoglio", "l.sic", "--colonne", self.scrivi("c.col", byte(COLONNE)), "--vincente", "5",
                     dice="Link non valide")

    def test_una_colonna_di_altra_lunghezza_avvisa(self):
        self.spoglio("--vincente", "5.12.30")
        self.assertIn("la colonna vincente ha 3 numeri", self.messaggi)

    def test_un_filtro_emulatore_vuole_le_sue_estrazioni(self):
        # a filter with it would cut the second column, and the check is of them all
        limiti = "".join(f"P{p}) 0 - {0 if p in (3, 5) else 9}\r\n" for p in range(6))
        nome = self.crea({**SISTEMA, "righe": [["Emulatore", "[1]\r\n" + limiti, "", "", ""]]})
        # one draw of "Lotto": wheel w has 5w-4 to 5w
        self.scrivi("a.bd", bytes(12) + bytes(range(1, 56)))
        opzioni = ("spoglio", nome, "--colonne", self.scrivi("c.col", byte(COLONNE)), "--json", "--archivio", "a.bd")
        for vincente, esito in (("1.2.3.20.40", "No"), ("1.2.20.30.40", "Si")):
            uscita, messaggi = self.esegui(*opzioni, "--vincente", vincente, "--ruota", "Bari")
            self.assertEqual(messaggi, "")
            self.assertEqual(json.loads(uscita)["confronto"][0]["Esito"], esito)
            self.assertIn("2", [r["Colonna"] for r in json.loads(uscita)["vincite"]])
        self.assertEqual(self.leggi("c.col"), byte(COLONNE))
        self.rifiuta("spoglio", nome, "--vincente", "1.2.3.4.5", dice="--colonne")

    def test_quello_che_non_si_puo(self):
        nome = self.crea(SISTEMA)
        colonne = self.scrivi("c.col", byte(COLONNE))
        for vincente in ("", "0", "91", "1.1", "1,2", "x", "1.2.", ".".join(map(str, range(1, 22)))):
            self.rifiuta("spoglio", nome, "--colonne", colonne, "--vincente", vincente, atteso=2, intatti=[nome])
        for minimo in ("0", "11", "-1", "x"):
            self.rifiuta("spoglio", nome, "--colonne", colonne, "--vincente", "1", "--minimo", minimo, atteso=2)
        self.rifiuta("spoglio", nome, "--colonne", "manca.col", "--vincente", "1", dice="manca.col")
        self.rifiuta("spoglio", nome, "--colonne", self.scrivi("v.col", b""), "--vincente", "1", dice="non contiene colonne")
        self.rifiuta("spoglio", nome, "--vincente", "1", dice="--colonne")


if __name__ == "__main__":
    comune.avvia()
