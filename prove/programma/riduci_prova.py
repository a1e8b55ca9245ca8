# riduci_prova.py - "ordavel riduci" and "ordavel garanzia": fewer columns, and the promise that they keep.

import json
from itertools import combinations

import comune
from comune import Prova
from definizioni import in_byte

TRE = [(1, 2, 3), (1, 2, 4), (5, 6, 7)]


def colonne_di(byte):
    """The columns of a file, without the zeros behind their numbers."""
    return [tuple(n for n in byte[i:i + 20] if n) for i in range(0, len(byte), 20)]


def scoperte(colonne, ridotte, punti):
    return [c for c in colonne if all(len(set(c) & set(r)) < punti for r in ridotte)]


def in_ordine(colonne, punti):
    """First fit, as it is defined."""
    tenute = []
    for c in colonne:
        if all(len(set(c) & set(t)) < punti for t in tenute):
            tenute.append(c)
    return tenute


class Riduci(Prova):
    def riduci(self, colonne, punti, *altre):
        """Reduces columns, checks the promise with and without the program; gives what stays."""
        self.scrivi("prova.col", in_byte(colonne))
        uscita, messaggi = self.esegui("riduci", "prova.col", "-o", "meno.col", "--punti", str(punti), *altre)
        self.assertEqual(messaggi, "")
        ridotte = colonne_di(self.leggi("meno.col"))
        self.assertTrue(set(ridotte) <= set(colonne))
        self.assertEqual(scoperte(colonne, ridotte, punti), [])
        self.assertEqual(self.leggi("prova.col"), in_byte(colonne))
        self.esegui("garanzia", "prova.col", "meno.col", "--punti", str(punti))
        return uscita, ridotte

    def test_tre_colonne(self):
        uscita, ridotte = self.riduci(TRE, 2)
        self.assertEqual(uscita, "meno.col: 2 colonne di 3\n")
        self.assertEqual(len(ridotte), 2)

    def test_insieme_completo(self):
        _, ridotte = self.riduci(list(combinations(range(1, 11), 5)), 4)
        self.assertLess(len(ridotte), 30)

    def test_motore_esterno(self):
        tutte = list(combinations(range(1, 11), 5))
        interne = len(self.riduci(tutte, 4)[1])
        uscita, esterne = self.riduci(tutte, 4, "--motore", "esterno", "--secondi", "1")
        self.assertLess(len(esterne), interne)
        self.assertEqual(uscita, f"meno.col: {len(esterne)} colonne di 252\n")

    def test_motore_esterno_senza_tempo(self):
        self.assertEqual(len(self.riduci(TRE, 2, "--motore", "esterno", "--secondi", "0")[1]), 2)

    def test_punti_zero(self):
        self.assertEqual(len(self.riduci(TRE, 0)[1]), 1)

    def test_piu_punti_dei_numeri(self):
        self.scrivi("prova.col", in_byte(TRE))
        self.esegui("riduci", "prova.col", "-o", "meno.col", "--punti", "4")
        self.assertEqual(sorted(colonne_di(self.leggi("meno.col"))), TRE)

    def test_json(self):
        uscita, _ = self.riduci(TRE, 2, "--json")
        oggetto = json.loads(uscita)
        self.assertEqual((oggetto["uscita"], oggetto["colonne"], oggetto["ridotte"], oggetto["interrotto"]),
                         ("meno.col", 3, 2, False))

    def test_file_vecchio_sostituito(self):
        self.scrivi("meno.col", b"x" * 10000)
        self.riduci(TRE, 2)

    def test_file_che_manca_o_vuoto(self):
        self.scrivi("vuoto.col", b"")
        self.scrivi("meno.col", b"resta")
        for nome in ("manca.col", "vuoto.col"):
            with self.subTest(nome):
                messaggi = self.esegui("riduci", nome, "-o", "meno.col", "--punti", "2", atteso=1)[1]
                self.assertIn(nome, messaggi)
                self.assertEqual(self.leggi("meno.col"), b"resta")

    def test_il_file_da_ridurre_resta(self):
        self.scrivi("prova.col", in_byte(TRE))
        self.esegui("riduci", "prova.col", "-o", "prova.col", "--punti", "2", atteso=1)
        self.assertEqual(self.leggi("prova.col"), in_byte(TRE))

    def test_cartella_dove_non_si_scrive(self):
        self.scrivi("prova.col", in_byte(TRE))
        opzioni = self.senza_privilegi()
        self.cartella.chmod(0o555)
        self.addCleanup(self.cartella.chmod, 0o755)
        self.rifiuta("riduci", "prova.col", "-o", "meno.col", "--punti", "2", intatti=["prova.col"], dice="meno.col",
                     **opzioni)
        self.rifiuta("riduci", "prova.col", "--sequenziale", "--riduzione", "1", intatti=["prova.col"],
                     dice="prova_Rid_N-1.col", **opzioni)

    def test_oltre_un_milione(self):
        self.scrivi("prova.col", b"")
        with open(self.cartella / "prova.col", "r+b") as file:
            file.truncate(20_000_020)
        messaggi = self.esegui("riduci", "prova.col", "-o", "meno.col", "--punti", "2", atteso=1)[1]
        self.assertIn("1000000", messaggi)
        self.assertFalse((self.cartella / "meno.col").exists())

    def test_parole_sbagliate(self):
        for parole in ((), ("-o", "a.col"), ("--punti", "3"), ("-o", "a.col", "--punti", "x"),
                       ("-o", "a.col", "--punti", "3", "--motore", "altro"),
                       ("-o", "a.col", "--punti", "3", "--secondi", "5"),
                       ("-o", "a.col", "--punti", "3", "--motore", "esterno", "--secondi", "-1"),
                       ("-o", "a.col", "--punti", "3", "--riduzione", "1"),
                       ("--sequenziale",), ("--sequenziale", "--riduzione", "4"),
                       ("--sequenziale", "--riduzione", "1", "--punti", "2"),
                       ("--sequenziale", "--riduzione", "1", "-o", "a.col")):
            with self.subTest(parole):
                self.esegui("riduci", "prova.col", *parole, atteso=2)


class Sequenziale(Prova):
    def riduci(self, colonne, cedute):
        self.scrivi("prova.col", in_byte(colonne))
        uscita, messaggi = self.esegui("riduci", "prova.col", "--sequenziale", "--riduzione", str(cedute))
        self.assertEqual(messaggi, "")
        nome = f"prova_Rid_N-{cedute}.col"
        ridotte = colonne_di(self.leggi(nome))
        self.assertEqual(ridotte, in_ordine(colonne, len(colonne[0]) - cedute))
        self.assertEqual(uscita, f"{nome}: {len(ridotte)} colonne di {len(colonne)}\n")

    def test_tre_colonne(self):
        self.riduci(TRE, 1)

    def test_ogni_riduzione(self):
        for cedute in (1, 2, 3):
            with self.subTest(cedute):
                self.riduci(list(combinations(range(1, 12), 5)), cedute)

    def test_file_vecchio_sostituito(self):
        self.scrivi("prova_Rid_N-1.col", b"x" * 10000)
        self.riduci(TRE, 1)

    def test_in_un_altra_cartella(self):
        (self.cartella / "sotto.d").mkdir()
        self.scrivi("sotto.d/prova", in_byte(TRE))
        self.esegui("riduci", "sotto.d/prova", "--sequenziale", "--riduzione", "1")
        self.assertEqual(colonne_di(self.leggi("sotto.d/prova_Rid_N-1.col")), [TRE[0], TRE[2]])


class Garanzia(Prova):
    def test_promessa_non_tenuta(self):
        self.scrivi("prova.col", in_byte(TRE))
        self.scrivi("meno.col", in_byte(TRE[:1]))
        uscita, _ = self.esegui("garanzia", "prova.col", "meno.col", "--punti", "2", atteso=1)
        self.assertEqual(uscita, "Non garantiti 2 punti: scoperte 1 colonne di 3\nLa prima è la 3: 05 06 07\n")
        uscita, _ = self.esegui("garanzia", "prova.col", "meno.col", "--punti", "2", "--json", atteso=1)
        self.assertEqual(json.loads(uscita), {"punti": 2, "controllate": 3, "scoperte": 1,
                                              "prima": {"colonna": 3, "numeri": "05 06 07"}})

    def test_promessa_tenuta(self):
        self.scrivi("prova.col", in_byte(TRE))
        self.scrivi("meno.col", in_byte([TRE[1], TRE[2]]))
        uscita, _ = self.esegui("garanzia", "prova.col", "meno.col", "--punti", "2")
        self.assertEqual(uscita, "Garantiti 2 punti: 3 colonne controllate\n")
        uscita, _ = self.esegui("garanzia", "prova.col", "meno.col", "--punti", "2", "--json")
        self.assertEqual(json.loads(uscita), {"punti": 2, "controllate": 3, "scoperte": 0})

    def test_file_che_mancano(self):
        self.scrivi("prova.col", in_byte(TRE))
        for parole in (("prova.col", "manca.col"), ("manca.col", "prova.col")):
            with self.subTest(parole):
                messaggi = self.esegui("garanzia", *parole, "--punti", "2", atteso=1)[1]
                self.assertIn("manca.col", messaggi)


if __name__ == "__main__":
    comune.avvia()
