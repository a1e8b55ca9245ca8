# crea_prova.py - "ordavel crea": from a text to a system file, and the texts that are no system.

import json
import os
import struct
import unittest

import comune
from comune import Prova
from definizioni import pari, peso, sistema

BUONO = sistema([5, 17, 90], 3, [peso([1, 2], range(10, 41)), pari({1, 2}, {0}, 1)], [(1, 2, True)], riduzione=2)


class Creazione(Prova):
    def test_byte_del_file(self):
        byte = self.leggi(self.crea(BUONO))
        self.assertEqual(len(byte), 317 + 2 * 334)
        self.assertEqual(byte[:7], b"SISTOCX")
        classe, riduzione, *numeri = struct.unpack_from("<92h", byte, 7)
        self.assertEqual((classe, riduzione), (3, 2))
        self.assertEqual([n for n, scelto in enumerate(numeri, 1) if scelto == -1], [5, 17, 90])
        self.assertEqual(numeri.count(0), 87)
        quadro = struct.unpack_from("<63h", byte, 191)
        self.assertEqual(quadro[3:6], (-1, 1, 2))
        self.assertFalse(any(quadro[6:]))
        self.assertEqual([struct.unpack_from("<h", byte, 317 + 334 * i)[0] for i in range(2)], [5, 4])

    def test_solo_classe_e_numeri(self):
        self.assertEqual(len(self.leggi(self.crea({"classe": 2, "numeri": []}))), 317)

    def test_testo_dallo_ingresso(self):
        self.esegui("crea", "-", "due.sic", ingresso=json.dumps(BUONO).encode())
        self.assertEqual(self.leggi("due.sic"), self.leggi(self.crea(BUONO)))

    def test_forme_dello_stesso_testo(self):
        byte = self.leggi(self.crea(BUONO))
        bello = json.dumps(BUONO, indent=4).replace("\n", "\r\n")
        for nome, testo in (("segno iniziale", b"\xef\xbb\xbf" + json.dumps(BUONO).encode()), ("righe", bello),
                            ("a capo semplice", json.dumps(BUONO).replace("\\r\\n", "\\n")),
                            ("colonne da non leggere", {**BUONO, "colonne": 12})):
            with self.subTest(nome):
                self.esegui("crea", self.scrivi("altro.json", testo), "altro.sic")
                self.assertEqual(self.leggi("altro.sic"), byte)

    def test_file_vecchio_sostituito(self):
        self.scrivi("prova.sic", b"x" * 5000)
        self.assertEqual(len(self.leggi(self.crea(BUONO))), 317 + 2 * 334)

    def test_duemila_condizioni(self):
        molte = sistema([1, 2, 3], 2, [pari({1})] * 2000)
        self.assertEqual(len(self.leggi(self.crea(molte))), 317 + 2000 * 334)

    def test_riga_vuota_nel_mezzo(self):
        testo = {**BUONO, "righe": [pari({1}).celle, ["", "", "", "", ""], pari({2}).celle]}
        _, messaggi = self.esegui("crea", self.scrivi("v.json", testo), "v.sic")
        self.assertIn("avviso: la riga 2 è vuota", messaggi)
        self.assertEqual(len(self.leggi("v.sic")), 317 + 334)


class Rifiuti(Prova):
    """Every wrong text is refused in words that say what is wrong; an older system stays."""

    def rifiuta_testo(self, testo, *dice, **opzioni):
        self.scrivi("vecchio.sic", b"vecchio")
        self.scrivi("testo.json", testo)
        self.rifiuta("crea", "testo.json", "vecchio.sic", intatti=["vecchio.sic", "testo.json"], dice=dice, **opzioni)

    def test_testi_che_non_sono_json(self):
        for testo, dice in (("", "riga 1"), ("{", "riga 1, colonna"), ('{"classe": 5,\n "numeri": [1, 2,]}', "riga 2"),
                            ("\x00" * 100, "JSON non valido"), (b"\xff\xfe{\x00", "JSON non valido"),
                            (b'{"classe": 5, "numeri": [], "x": "\xe0"}', "JSON non valido"),
                            ('{"classe": 1e999, "numeri": []}', "numero è troppo grande"),
                            ("[" * 1000000, "JSON non valido"), (os.urandom(3000) + b"\0", "JSON non valido")):
            with self.subTest(testo[:30]):
                self.rifiuta_testo(testo, "errore: testo.json: ", dice)

    def test_chiavi(self):
        for testo, dice in (([], "oggetto"), ("ciao", "oggetto"), (None, "oggetto"), ({}, 'manca "classe"'),
                            ({"classe": 5}, 'manca "numeri"'), ({**BUONO, "clase": 5}, 'chiave sconosciuta "clase"')):
            with self.subTest(str(testo)[:30]):
                self.rifiuta_testo(json.dumps(testo), dice)

    def test_classe_e_riduzione(self):
        for chiave, limiti, sbagliati in (("classe", "da 2 a 10", [1, 11, -5, 0, 32773, 1 << 70, 5.0, "5", None, True]),
                                          ("riduzione", "da 0 a 5", [-1, 6, 65536, 1.5, "", [1], {}])):
            for valore in sbagliati:
                with self.subTest(chiave=chiave, valore=valore):
                    self.rifiuta_testo({**BUONO, chiave: valore}, f'"{chiave}": serve un numero intero {limiti}')

    def test_numeri(self):
        for numeri, dice in (([0], "da 1 a 90, non 0"), ([91], "da 1 a 90, non 91"), ([-3], "non -3"),
                             ([1, 2, 1], "il 1 compare due volte"), ([1.5], "non 1.5"), (["7"], 'non "7"'),
                             ([[1]], "un elenco"), ([{"a": 1}], "un oggetto"), (5, "serve un elenco"),
                             (list(range(1, 91)) + [1], "al massimo 90")):
            with self.subTest(str(numeri)[:30]):
                self.rifiuta_testo({**BUONO, "numeri": numeri}, '"numeri": ', dice)

    def test_righe(self):
        giusta = pari({1}).celle
        for riga, dice in ((giusta[:4], "cinque testi"), (giusta + [""], "cinque testi"), ("Pari-Dispari", "cinque testi"),
                           (["Peso", 3, "", "", ""], "serve un testo, non 3"), ([None] * 5, "serve un testo, non null"),
                           (["Pesi", "", "", "", ""], 'condizione sconosciuta "Pesi"')):
            with self.subTest(str(riga)):
                self.rifiuta_testo({**BUONO, "righe": [giusta, riga]}, "riga 2: ", dice)
        self.rifiuta_testo({**BUONO, "righe": {}}, '"righe": serve un elenco')
        self.rifiuta_testo({**BUONO, "righe": [giusta] * 2001}, "al massimo 2000")

    def test_valori_di_una_riga(self):
        for celle in (["Peso", "Caselle :\r\n1-91", "1-2", "", ""], ["Consecutivi", "", "0-11", "", ""],
                      ["Punti Col.", "01-99", "1", "", ""], ["Formule", "", "1-2-3-4-5-6-7-8-9-10-11-12", "", ""],
                      ["LinkClose", "", "91", "", ""], ["Resto", "Resto a : 99999", "1", "", ""]):
            with self.subTest(str(celle)):
                self.rifiuta_testo({**BUONO, "righe": [pari({1}).celle, celle]}, "condizione 2 " + celle[0])

    def test_quadro(self):
        for linea in ("", "1,2", "1,2,3,4", "a,b,c", "1;2;3", "1,2,", "999999,1,1"):
            with self.subTest(linea):
                self.rifiuta_testo({**BUONO, "quadro": ["1,2,-1", linea]}, "quadro 2: ")
        self.rifiuta_testo({**BUONO, "quadro": ["1,2,-1"] * 21}, "al massimo 20")
        self.rifiuta_testo({**BUONO, "quadro": [5]}, "serve un testo, non 5")
        self.rifiuta_testo({**BUONO, "quadro": ["99999,1,1"]}, "errore: ")

    def test_testi_profondi_e_lunghi(self):
        profondo = "[" * 300000 + "]" * 300000
        for testo in (f'{{"classe": {profondo}, "numeri": []}}', f'{{"classe": 5, "numeri": [{profondo}]}}',
                      f'{{"classe": 5, "numeri": [], "righe": [{profondo}]}}',
                      f'{{"classe": 5, "numeri": [], "righe": [["Peso", {profondo}, "", "", ""]]}}'):
            with self.subTest(testo[:40]):
                self.rifiuta_testo(testo, "errore: testo.json: ")
        self.rifiuta_testo({**BUONO, "classe": "x" * 3000000}, "non \"xxx")

    def test_testo_troppo_grande(self):
        with open(self.cartella / "enorme.json", "wb") as file:
            file.truncate(40 << 30)
        self.esegui("crea", "enorme.json", "prova.sic", atteso=1)
        self.assertFalse((self.cartella / "prova.sic").exists())

    def test_ingresso_senza_fine(self):
        with open("/dev/zero", "rb") as ingresso:
            self.rifiuta("crea", "-", "prova.sic", dice="8 MiB", stdin=ingresso)

    def test_testo_che_non_si_legge(self):
        os.mkfifo(self.cartella / "tubo")
        (self.cartella / "cartella").mkdir()
        for nome in ("manca.json", "manca/manca.json", "tubo", "cartella", "/dev/zero"):
            with self.subTest(nome):
                self.rifiuta("crea", nome, "prova.sic", dice=["errore: ", nome])

    def test_uscita_che_non_si_puo_scrivere(self):
        (self.cartella / "cartella").mkdir()
        self.scrivi("buono.json", BUONO)
        for uscita in ("manca/prova.sic", "cartella", "/dev/full", "buono.json/prova.sic", ""):
            with self.subTest(uscita):
                self.rifiuta("crea", "buono.json", uscita, intatti=["buono.json"], dice=["errore: ", uscita])

    def test_il_testo_non_si_sovrascrive(self):
        self.scrivi("buono.json", BUONO)
        self.rifiuta("crea", "buono.json", "buono.json", intatti=["buono.json"], dice="è il file da leggere")

    def test_senza_permesso(self):
        self.scrivi("buono.json", BUONO)
        self.scrivi("vecchio.sic", b"vecchio")
        opzioni = self.senza_privilegi()
        self.cartella.chmod(0o555)
        self.addCleanup(self.cartella.chmod, 0o755)
        for uscita in ("vecchio.sic", "nuovo.sic"):
            with self.subTest(uscita):
                self.rifiuta("crea", "buono.json", uscita, intatti=["vecchio.sic"], dice="Permesso negato: " + uscita,
                             **opzioni)

    def test_file_troppo_grande_per_il_limite(self):
        self.rifiuta_testo(BUONO, "Disco pieno: vecchio.sic", preexec_fn=comune.limita_file)

    def test_disco_pieno(self):
        disco = self.monta_disco("disco", 65536)
        (disco / "vecchio.sic").write_bytes(b"prezioso")
        self.scrivi("grande.json", sistema([1, 2, 3], 2, [pari({1})] * 1000))
        for uscita in ("vecchio.sic", "nuovo.sic"):
            with self.subTest(uscita):
                _, messaggi = self.esegui("crea", "grande.json", disco / uscita, atteso=1)
                self.assertIn("Disco pieno", messaggi)
                self.assertEqual(os.listdir(disco), ["vecchio.sic"])
                self.assertEqual((disco / "vecchio.sic").read_bytes(), b"prezioso")


if __name__ == "__main__":
    comune.avvia()
