# aggiungi_prova.py - "ordavel aggiungi": a condition by its values, the rows of a condition file, columns of a text.

import json
import unittest

import comune
from comune import Prova

RIGHE = [
    ["Ponte", "P\r\no\r\nn\r\nt\r\ne", "00-01", "", ""],
    ["Peso", "Caselle :\r\n1-2-3", "10-200", "", ""],
]
VUOTO = {"classe": 5, "numeri": list(range(1, 31))}
SISTEMA = {**VUOTO, "righe": RIGHE}


def riga_cnd(*celle):
    return "".join(cella + "[R]" for cella in celle).encode("cp1252") + b"\0"


class ProvaRighe(Prova):
    def righe(self, nome):
        uscita, messaggi = self.esegui("mostra", nome, "--json")
        self.assertEqual(messaggi, "")
        return json.loads(uscita)["righe"]


class PerTipo(ProvaRighe):
    # values given, and the row that a system file gives back
    CASI = [
        ("Pari-Dispari", r"Dispari\n2,3", ["Pari-Dispari", "Dispari", "02-03", "", ""]),
        ("ponte", "1,2|0", ["Ponte", "P\r\no\r\nn\r\nt\r\ne", "01-02", "00", "1"]),
        ("RESTO", "4\n0,3", ["Resto", "Resto a : 4", "0-3", "", ""]),
        ("Ampiezza", "10,40|5,50", ["Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "10-40", "5-50", "1"]),
        ("Sequenze", "PD\r\n1,2||0,1", ["Sequenze", "P\r\nD\r\nPasso : 1\r\nConsec : 00-01", "01-02", "", ""]),
        ("Vortice", "Inverso\n1|2", ["Vortice", "Inverso", "1", "2", "1"]),
    ]

    def test_ogni_forma_dei_valori(self):
        for tipo, parametri, attesa in self.CASI:
            with self.subTest(tipo):
                nome = self.crea(SISTEMA)
                uscita, messaggi = self.esegui("aggiungi", nome, "--tipo", tipo, "--parametri", parametri)
                self.assertEqual((uscita, messaggi), (nome + ": 3 condizioni\n", ""))
                self.assertEqual(self.righe(nome), RIGHE + [attesa])

    def test_un_linkopen_non_chiede_nulla_e_da_solo_avvisa(self):
        nome = self.crea(SISTEMA)
        _, messaggi = self.esegui("aggiungi", nome, "--tipo", "LinkOpen")
        self.assertEqual(messaggi, "avviso: Link non valide\n")
        self.assertEqual(self.righe(nome)[2][0], "LinkOpen")

    def test_l_emulatore_prende_le_righe_della_sua_cella(self):
        nome = self.crea(SISTEMA)
        self.esegui("aggiungi", nome, "--tipo", "Emulatore", "--parametri", r"12]\nP0) 1 - 3")
        self.assertTrue(self.righe(nome)[2][1].startswith("[12]\r\nP0)   1 -   3\r\nP1)   0 -  12"))

    def test_i_valori_lasciano_fuori_la_casella_e_la_cifra(self):
        for tipo, manca in (("Posizioni", "la casella"), ("Figure Specifiche", "la cifra")):
            nome = self.crea(SISTEMA)
            _, messaggi = self.esegui("aggiungi", nome, "--tipo", tipo, "--parametri", "1,3")
            self.assertIn("non dice ancora " + manca, messaggi)

    def test_un_tipo_sconosciuto(self):
        nome = self.crea(SISTEMA)
        self.rifiuta("aggiungi", nome, "--tipo", "Ampieza", "--parametri", "1,2", atteso=2, intatti=[nome],
                     dice=['condizione sconosciuta "Ampieza"', 'forse "Ampiezza"'])

    def test_i_tipi_che_non_prendono_valori(self):
        nome = self.crea(SISTEMA)
        for tipo in ("Peso", "SommaDecine", "Formule", "LinkClose", "Punti Col.", "SimmetrieNum", "ParalleliNum",
                     "Decine Specifiche", "GruppiDiConsecutivi"):
            with self.subTest(tipo):
                self.rifiuta("aggiungi", nome, "--tipo", tipo, "--parametri", r"Pari\n1", intatti=[nome],
                             dice="non si dà con --parametri")

    def test_valori_malformati(self):
        casi = [
            ("Ponte", ""), ("Ponte", "x"), ("Ponte", "1,,2"), ("Ponte", "6"), ("Ponte", "-1"), ("Ponte", "1|2|3"),
            ("Ponte", "1.5"), ("Ponte", "99999999999"), ("Vortice", r"Diretto\n0"), ("Pari-Dispari", "1"),
            ("Pari-Dispari", r"Forse\n1"), ("Resto", r"3\n3"), ("Resto", r"10\n1"), ("Ampiezza", "5"),
            ("Ampiezza", "9,5"), ("Ampiezza", "0,0"), ("Ampiezza", "1,2|x"), ("Sequenze", r"PX\n1||1"),
            ("Sequenze", r"PD\n1"), ("Sequenze", r"PDPDPD\n1||1"), ("Sequenze", r"PD\n5||1"), ("Emulatore", "12"),
            ("Emulatore", "[12]"), ("Emulatore", "501]"), ("Emulatore", "0]"), ("Emulatore", r"12]\nP0) 1"),
            ("Emulatore", "12]" + r"\nP0) 1 - 2" * 9), ("LinkOpen", "1"), ("Ponte", "1" * 100000),
        ]
        nome = self.crea(SISTEMA)
        for tipo, parametri in casi:
            with self.subTest(tipo + " " + parametri[:40]):
                self.rifiuta("aggiungi", nome, "--tipo", tipo, "--parametri", parametri, intatti=[nome])

    def test_la_duemillesima_entra_e_quella_dopo_no(self):
        nome = self.crea({**VUOTO, "righe": RIGHE[:1] * 1999})
        self.esegui("aggiungi", nome, "--tipo", "Ponte", "--parametri", "1")
        self.rifiuta("aggiungi", nome, "--tipo", "Ponte", "--parametri", "1", intatti=[nome],
                     dice="il sistema ha 2000 condizioni")

    def test_le_colonne_del_sistema_non_restano(self):
        nome = self.scrivi("con.sic", self.leggi(self.crea(VUOTO)) + b"COLONNE" +
                           bytes([1, 2, 3, 4, 5] + [0] * 15))
        _, messaggi = self.esegui("aggiungi", nome, "--tipo", "Ponte", "--parametri", "1")
        self.assertIn("le colonne che il sistema portava non valgono più", messaggi)
        self.assertEqual(json.loads(self.esegui("mostra", nome, "--json")[0])["colonne"], 0)


class DaFile(ProvaRighe):
    def test_le_righe_vanno_in_coda(self):
        nome = self.crea(SISTEMA)
        file = self.scrivi("due.cnd", riga_cnd("Ponte", "P\r\no\r\nn\r\nt\r\ne", "1", "", " ") +
                           riga_cnd("Pari-Dispari", "Pari", "2-3", "1", "4"))
        self.assertEqual(self.esegui("aggiungi", nome, "--file", file), (nome + ": 4 condizioni\n", ""))
        self.assertEqual(self.righe(nome)[2:], [["Ponte", "P\r\no\r\nn\r\nt\r\ne", "01", "", ""],
                                                ["Pari-Dispari", "Pari", "02-03", "01", "4"]])

    def test_un_file_che_e_altro(self):
        nome = self.crea(SISTEMA)
        for indice, contenuto in enumerate((b"", b"\0\0\0", b"[R][R][R]", b"ciao\nmondo", bytes(range(256)) * 40,
                                            b"A" * 9000000, self.leggi(nome), riga_cnd("Pante", "", "1", "", ""))):
            with self.subTest(indice):
                file = self.scrivi("altro.cnd", contenuto)
                self.rifiuta("aggiungi", nome, "--file", file, intatti=[nome])

    def test_un_file_che_manca_o_che_e_una_cartella(self):
        nome = self.crea(SISTEMA)
        (self.cartella / "cartella.cnd").mkdir()
        for file in ("manca.cnd", "cartella.cnd"):
            self.rifiuta("aggiungi", nome, "--file", file, intatti=[nome], dice=file)

    def test_righe_che_non_si_compilano(self):
        nome = self.crea(SISTEMA)
        file = self.scrivi("guaste.cnd", riga_cnd("Ponte", "", "11", "", ""))
        self.rifiuta("aggiungi", nome, "--file", file, intatti=[nome], dice="condizione 3 Ponte")

    def test_oltre_la_riga_duemila(self):
        nome = self.crea({**VUOTO, "righe": RIGHE[:1] * 1999})
        file = self.scrivi("due.cnd", riga_cnd("Ponte", "", "1", "", "") * 2)
        self.rifiuta("aggiungi", nome, "--file", file, intatti=[nome], dice="ne entrano altre 1")
        tante = self.scrivi("tante.cnd", riga_cnd("Ponte", "", "1", "", "") * 2001)
        self.rifiuta("aggiungi", nome, "--file", tante, intatti=[nome])


class DaColonne(ProvaRighe):
    def test_una_condizione_per_riga_con_numeri(self):
        nome = self.crea(VUOTO)
        testo = self.scrivi("c.txt", "1 2 3\nciao\n\nn. 7, 08, 91\r\n")
        self.esegui("aggiungi", nome, "--colonne", testo, "--punti", "1,2", "--recupero", "0", "--quadro", "2")
        self.assertEqual(self.righe(nome), [["Punti Col.", "01-02-03", "01-02", "00", "2"],
                                            ["Punti Col.", "07-08", "01-02", "00", "2"]])

    def test_senza_recupero(self):
        nome = self.crea(VUOTO)
        self.esegui("aggiungi", nome, "--colonne", self.scrivi("c.txt", "5"), "--punti", "0")
        self.assertEqual(self.righe(nome), [["Punti Col.", "05", "00", "", ""]])

    def test_senza_colonne(self):
        nome = self.crea(VUOTO)
        for contenuto in ("", "\n\n\n", "nessun numero\n91 0\n"):
            self.rifiuta("aggiungi", nome, "--colonne", self.scrivi("c.txt", contenuto), "--punti", "1",
                         intatti=[nome], dice="non contiene colonne")
        self.rifiuta("aggiungi", nome, "--colonne", "manca.txt", "--punti", "1", intatti=[nome], dice="manca.txt")

    def test_dieci_milioni_di_righe(self):
        nome = self.crea(VUOTO)
        testo = self.scrivi("grande.txt", b"1 2 3 4 5\n" * 10000000)
        self.rifiuta("aggiungi", nome, "--colonne", testo, "--punti", "1", intatti=[nome],
                     dice="ne entrano altre 2000, non di più")

    def test_piu_colonne_del_posto(self):
        nome = self.crea({**VUOTO, "righe": RIGHE[:1] * 1999})
        self.rifiuta("aggiungi", nome, "--colonne", self.scrivi("c.txt", "1\n2\n"), "--punti", "1", intatti=[nome],
                     dice="ne entrano altre 1")

    def test_punti_oltre_la_classe(self):
        nome = self.crea(VUOTO)
        self.rifiuta("aggiungi", nome, "--colonne", self.scrivi("c.txt", "1\n"), "--punti", "6", intatti=[nome],
                     dice="i punti vanno da 0 a 5")


class Uso(ProvaRighe):
    def test_opzioni_che_non_stanno_insieme(self):
        nome = self.crea(VUOTO)
        casi = [
            (), ("--tipo", "Ponte", "--file", "x.cnd"), ("--file", "x.cnd", "--punti", "1"), ("--colonne", "c.txt"),
            ("--file", "x.cnd", "--parametri", "1"), ("--colonne", "c.txt", "--punti", "1", "--recupero", "2"),
            ("--colonne", "c.txt", "--punti", "1", "--quadro", "2"),
            ("--colonne", "c.txt", "--punti", "1,2", "--recupero", "2", "--quadro", "1"),
            ("--colonne", "c.txt", "--punti", "1", "--recupero", "2", "--quadro", "21"),
            ("--colonne", "c.txt", "--punti", "uno"),
        ]
        for opzioni in casi:
            with self.subTest(opzioni):
                self.rifiuta("aggiungi", nome, *opzioni, atteso=2, intatti=[nome])

    def test_un_sistema_che_non_e_tale(self):
        for contenuto in (b"", b"x" * 400, bytes(317)):
            nome = self.scrivi("s.sic", contenuto)
            self.rifiuta("aggiungi", nome, "--tipo", "Ponte", "--parametri", "1", intatti=[nome])
        self.rifiuta("aggiungi", "manca.sic", "--tipo", "Ponte", "--parametri", "1", dice="manca.sic")

    def test_un_sistema_che_non_si_puo_scrivere(self):
        nome = self.crea(VUOTO)
        opzioni = self.senza_privilegi()
        (self.cartella / nome).chmod(0o444)
        self.rifiuta("aggiungi", nome, "--tipo", "Ponte", "--parametri", "1", intatti=[nome], dice=nome, **opzioni)


if __name__ == "__main__":
    comune.avvia()
