# mostra_prova.py - "ordavel mostra": a system as text and as JSON, and back.

import json
import os
import unittest

import comune
from comune import Prova
from definizioni import LinkClose, LinkOpen, consecutivi, in_byte, pari, peso, sistema

# A row of each kind, as a file gives it back; all of them let some columns through.
TIPI = [
    ["LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn", "", "", ""],
    ["Punti Col.", "01-02-03-04-\r\n05-06", "00-01-02-03", "", ""],
    ["LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", "00-01", "", ""],
    ["Pari-Dispari", "Pari", "01-02-03-04", "05", "1"],
    ["Peso", "Caselle :\r\n1-2-3", "0-200", "201-250", "2"],
    ["Resto", "Resto a : 3", "0-1-2", "", ""],
    ["Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "5-89", "", ""],
    ["Vortice", "Diretto", "0-1-2-3-4-5", "", ""],
    ["Simmetrie", "Inverse", "0-1-2", "", ""],
    ["Baricentro", "B\r\na\r\nr\r\ni\r\nc\r\ne\r\nn\r\nt\r\nr\r\no", "1-90", "", ""],
    ["Posizioni", "Casella :\r\n2", "2-80", "", ""],
    ["Sequenze", "P\r\nD\r\nPasso : 1\r\nConsec : 00-01-02\r\nConsecR : 03", "00-01-02", "03", "1"],
    ["Paralleli", "Dirette", "0-1-2", "", ""],
    ["GruppiDiConsecutivi", "GruppoDa : 2\r\nPasso : 2", "0-1-2", "", ""],
    ["SimmetrieNum", "SimmetrieNum", "0-1-2", "", ""],
    ["ParalleliNum", "ParalleliNum", "0-1-2", "", ""],
    ["Fulcro", "Dispari", "0-1-2-3-4-5", "", ""],
    ["SommaCadenze", "Caselle :\r\n1-5", "0-90", "", ""],
    ["SommaDecine", "Caselle :\r\n1-2", "0-90", "", ""],
    ["SommaFigure", "Caselle :\r\n1-2", "0-90", "", ""],
    ["SommaNumeretti", "Caselle :\r\n1-2", "0-90", "", ""],
    ["SommaComplessiva", "Caselle :\r\n1-2", "0-90", "", ""],
]


class Mostra(Prova):
    def mostra(self, nome):
        uscita, messaggi = self.esegui("mostra", nome, "--json")
        self.assertEqual(messaggi, "")
        return json.loads(uscita)

    def test_quello_che_si_era_scritto(self):
        testo = {"classe": 5, "riduzione": 3, "numeri": [2, 9, 17, 40, 41, 90], "righe": TIPI, "quadro": ["2,5,-1"]}
        mostrato = self.mostra(self.crea(testo))
        self.assertEqual(mostrato["quadro"], ["2,5,-1"] + ["0,0,0"] * 19)
        self.assertEqual(mostrato["colonne"], 0)
        for chiave in ("classe", "riduzione", "numeri", "righe"):
            self.assertEqual(mostrato[chiave], testo[chiave], chiave)

    def test_andata_e_ritorno(self):
        testo = {"classe": 5, "numeri": list(range(3, 90, 7)), "righe": TIPI, "quadro": ["1,1,-1", "0,0,0"]}
        primo = self.crea(testo, "primo.sic")
        mostrato, _ = self.esegui("mostra", primo, "--json")
        self.esegui("crea", "-", "secondo.sic", ingresso=mostrato.encode())
        self.assertEqual(self.esegui("mostra", "secondo.sic", "--json")[0], mostrato)
        for nome in (primo, "secondo.sic"):
            self.esegui("sviluppa", nome, "-o", nome + ".col")
        self.assertEqual(self.leggi("primo.sic.col"), self.leggi("secondo.sic.col"))
        self.assertGreater(len(self.leggi("primo.sic.col")), 0)

    def test_ogni_tipo_con_la_sola_chiave(self):
        # What a file gives back of a row with nothing in it can be read again, and stays the same.
        chiavi = {riga[0] for riga in TIPI} - {"LinkOpen", "LinkClose"}
        chiavi |= {"Consecutivi", "InterruzioniPD", "Distanza Minima", "Distanza Massima", "Ponte", "Interruzioni",
                   "ConsecutiviPD", "Cadenze", "Decine", "Figure", "Formule", "Emulatore", "Figure Specifiche",
                   "Cadenze Specifiche", "Decine Specifiche"}
        self.assertEqual(len(chiavi), 35)
        vuoto = {"classe": 5, "numeri": [1], "righe": [[chiave, "", "", "", ""] for chiave in sorted(chiavi)]}
        mostrato = self.mostra(self.crea(vuoto))
        self.assertEqual([riga[0] for riga in mostrato["righe"]], sorted(chiavi))
        self.assertEqual(self.mostra(self.crea(mostrato, "due.sic")), mostrato)

    def test_colonne_portate(self):
        byte = self.leggi(self.crea(sistema([1, 2, 3], 2, [pari({1})])))
        self.scrivi("pieno.sic", byte + b"COLONNE" + in_byte([(1, 2), (2, 3)]))
        self.assertEqual(self.mostra("pieno.sic")["colonne"], 2)
        self.assertEqual(self.mostra("pieno.sic")["righe"], self.mostra("prova.sic")["righe"])
        self.assertIn("2", self.esegui("mostra", "pieno.sic")[0].splitlines()[-1])

    def test_colonne_che_non_si_possono_copiare(self):
        byte = self.leggi(self.crea(sistema([1, 2, 3], 2)))
        self.scrivi("pieno.sic", byte + b"COLONNE" + in_byte([(1, 2)] * 100))
        self.rifiuta("mostra", "pieno.sic", intatti=["pieno.sic"], dice="Disco pieno", preexec_fn=comune.limita_file)

    def test_testo_per_chi_legge(self):
        condizioni = [peso([1, 2, 3], range(100, 151)), LinkOpen(), consecutivi({0, 1}, {2}, 2), LinkClose(1)]
        uscita, messaggi = self.esegui(
            "mostra", self.crea(sistema([4, 8, 90], 3, condizioni, [(0, 0, False), (1, 4, True)], riduzione=1)))
        self.assertEqual(messaggi, "")
        for testo in ("Classe 3", "riduzione 1", "(3)", "04 08 90", "Peso", "1-2-3", "100-150", "LinkOpen",
                      "Consecutivi", "LinkClose"):
            self.assertIn(testo, uscita)
        righe = uscita.splitlines()
        self.assertEqual([r for r in righe if r != r.rstrip()], [])
        self.assertEqual(len([r for r in righe if "recupero 2" in r]), 1)
        self.assertFalse([r for r in righe if "recupero 1" in r])
        self.assertNotIn("\r", uscita)

    def test_sistema_che_non_si_legge(self):
        os.mkfifo(self.cartella / "tubo")
        for nome, dice in (("manca.sic", "File non trovato: manca.sic"), ("manca/x.sic", "Percorso non trovato"),
                           ("tubo", "tubo"), (".", "errore: "), ("/dev/null", "/dev/null")):
            with self.subTest(nome):
                uscita, _ = self.rifiuta("mostra", nome, dice=dice)
                self.assertEqual(uscita, "")

    def test_file_rotti(self):
        byte = self.leggi(self.crea(sistema([1, 2, 3], 2, [pari({1})] * 3)))
        for nome, contenuto in (("vuoto", b""), ("mozzo", byte[:-1]), ("di troppo", byte + b"x"), ("solo segno", b"COLONNE"),
                                ("testo", b"Questo non e' un sistema.\n" * 40)):
            with self.subTest(nome):
                uscita, _ = self.rifiuta("mostra", self.scrivi("rotto.sic", contenuto),
                                         dice="avviso: Il sistema scelto è salvato in formato non più supportato")
                self.assertEqual(uscita, "")

    def test_byte_qualsiasi_non_fanno_cadere(self):
        # Any content of the right length is shown or refused; nothing else may happen.
        for seme in range(12):
            caso = bytes((i * i * (seme + 3) + 7 * i * seme + seme) % 256 for i in range(317 + 334 * (seme % 4)))
            self.scrivi("caso.sic", caso)
            processo = self.apri("mostra", "caso.sic", "--json")
            atteso = processo.wait(comune.SECONDI_MASSIMI)
            with self.subTest(seme):
                self.assertIn(atteso, (0, 1))
                uscita, messaggi = self.termina(processo, atteso)
                self.assertTrue(json.loads(uscita)["numeri"] if atteso == 0 else messaggi)

    def test_file_enorme(self):
        with open(self.cartella / "enorme.sic", "wb") as file:
            file.truncate(40 << 30)
        _, messaggi = self.esegui("mostra", "enorme.sic", atteso=1)
        self.assertIn("formato non più supportato", messaggi)


if __name__ == "__main__":
    comune.avvia()
