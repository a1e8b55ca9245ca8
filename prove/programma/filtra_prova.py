# filtra_prova.py - "ordavel filtra" against filters worked out here, and its bad sources.

import os
import unittest
from itertools import combinations

import comune
from comune import Prova
from definizioni import (LinkClose, LinkOpen, Verifica, consecutivi, filtra, in_byte, pari, peso, resto_di, sistema,
                         sviluppa)

NUMERI = list(range(2, 90, 5))


class Filtro(Prova):
    """The columns and the counts are those of the definitions."""

    def confronta(self, colonne, condizioni=(), quadro=(), riduzione=0):
        """Filters both ways; the system has other picks and another class, which play no part."""
        verifica = Verifica(condizioni, quadro)
        attese = filtra(colonne, verifica, riduzione)
        nome = self.crea(sistema([1, 2, 3], 2, condizioni, quadro, riduzione), "filtro.sic")
        self.scrivi("tutte.col", in_byte(colonne))
        esito, messaggi = self.esegui_json("filtra", nome, "--da", "tutte.col", "-o", "prova.col")
        self.assertEqual(messaggi, "")
        self.assertEqual(self.leggi("prova.col"), in_byte(attese))
        self.assertEqual(self.leggi("tutte.col"), in_byte(colonne))
        conti = (esito["integrali"], esito["sviluppate"], esito["condizionate"])
        self.assertEqual(conti, (len(colonne), len(colonne), len(attese)))
        for i, condizione in enumerate(esito["condizioni"]):
            contati = (condizione["ok"], condizione["ko"], condizione["rec"])
            self.assertEqual(contati, (verifica.ok[i], verifica.ko[i], verifica.rec[i]))
        return attese

    def test_condizioni_e_recupero(self):
        condizioni = [peso([1, 2, 3], range(60, 121), range(121, 150), 1), pari({1, 2}, {0}, 1), resto_di(3, {0, 1})]
        tenute = self.confronta(list(combinations(NUMERI, 4)), condizioni, [(1, 1, 1)])
        self.assertTrue(0 < len(tenute) < 3060)

    def test_link(self):
        tenute = self.confronta(list(combinations(NUMERI, 4)),
                                [LinkOpen(), pari({2}), consecutivi({0}), resto_di(4, {1}), LinkClose(1, 3)])
        self.assertTrue(0 < len(tenute) < 3060)

    def test_ordine_della_sorgente(self):
        colonne = list(combinations(NUMERI, 3))[::-1]
        tenute = self.confronta(colonne, [pari({1})], riduzione=1)
        self.assertTrue(0 < len(tenute) < len(colonne))

    def test_blocchi(self):
        tutte = list(combinations(range(1, 23), 5))
        for quante in (1, 9999, 10000, 10001, 20000, 25000):
            with self.subTest(quante):
                self.confronta(tutte[:quante], [peso([1], range(1, 90))], riduzione=2)

    def test_nessuna_colonna_resta(self):
        self.assertEqual(self.confronta(list(combinations(NUMERI, 3)), [peso([1], range(90, 91))]), [])

    def test_filtrare_tutte_le_colonne_come_sviluppare(self):
        condizioni = [peso([1, 2, 3, 4, 5], range(150, 231)), pari({2, 3}), resto_di(5, {0, 2, 4})]
        self.esegui("sviluppa", self.crea(sistema(NUMERI, 5), "nudo.sic"), "-o", "tutte.col")
        vestito = self.crea(sistema(NUMERI, 5, condizioni))
        self.esegui("sviluppa", vestito, "-o", "sviluppate.col")
        self.esegui("filtra", vestito, "--da", "tutte.col", "-o", "filtrate.col")
        self.assertEqual(self.leggi("sviluppate.col"), self.leggi("filtrate.col"))
        self.assertEqual(self.leggi("sviluppate.col"), in_byte(sviluppa(NUMERI, 5, Verifica(condizioni))))

    def test_la_sorgente_puo_essere_la_uscita(self):
        colonne = list(combinations(NUMERI, 3))
        self.scrivi("prova.col", in_byte(colonne))
        nome = self.crea(sistema([1, 2], 2, [pari({1})]))
        self.esegui("filtra", nome, "--da", "prova.col", "-o", "prova.col")
        self.assertEqual(self.leggi("prova.col"), in_byte(filtra(colonne, Verifica([pari({1})]))))

    def test_sorgente_nella_cartella_temporanea(self):
        propria = self.cartella / "propria"
        propria.mkdir()
        self.scrivi("propria/Sviluppo.col", in_byte([(1, 2), (1, 3)]))
        nome = self.crea(sistema([1, 2], 2, [consecutivi({0})]))
        self.esegui("filtra", nome, "--da", "propria/Sviluppo.col", "-o", "prova.col", "--temp", "propria")
        self.assertEqual(self.leggi("prova.col"), in_byte([(1, 3)]))
        self.assertEqual(self.leggi("propria/Sviluppo.col"), in_byte([(1, 2), (1, 3)]))
        self.assertEqual(os.listdir(propria), ["Sviluppo.col"])

    def test_tabella_per_chi_legge(self):
        self.scrivi("tutte.col", in_byte(list(combinations(NUMERI, 4))))
        uscita, _ = self.esegui("filtra", self.crea(sistema([1, 2], 2, [pari({2})])), "--da", "tutte.col", "-o", "p.col")
        self.assertIn("3.060", uscita)
        self.assertIn("Pari-Dispari", uscita)


class Sorgenti(Prova):
    """Sources that are not what they should be."""

    def setUp(self):
        super().setUp()
        self.sistema = self.crea(sistema([1, 2, 3], 2, [pari({0, 1})]))
        self.scrivi("vecchio.col", b"vecchio")

    def rifiuta_sorgente(self, sorgente, dice, **opzioni):
        return self.rifiuta("filtra", self.sistema, "--da", sorgente, "-o", "vecchio.col",
                            intatti=["vecchio.col", self.sistema], dice=dice, **opzioni)

    def test_sorgente_che_non_si_legge(self):
        os.mkfifo(self.cartella / "tubo")
        (self.cartella / "cartella").mkdir()
        for nome in ("manca.col", "manca/manca.col", "tubo", "cartella", "/dev/zero"):
            with self.subTest(nome):
                self.rifiuta_sorgente(nome, ["errore: ", nome])

    def test_sorgente_senza_colonne(self):
        for quanti in (0, 1, 10):
            with self.subTest(quanti):
                self.rifiuta_sorgente(self.scrivi("corta.col", in_byte([(1, 2)])[:quanti]),
                                      "avviso: corta.col non contiene colonne")

    def test_sorgente_che_si_legge_solo_con_permesso(self):
        opzioni = self.senza_privilegi()
        self.scrivi("segreta.col", in_byte([(1, 2)]))
        (self.cartella / "segreta.col").chmod(0)
        self.rifiuta_sorgente("segreta.col", "Permesso negato: segreta.col", **opzioni)

    def test_lunghezza_che_non_torna(self):
        byte = in_byte([(1, 3), (2, 5), (7, 9)])
        for quanti, colonne in ((41, 2), (50, 2), (51, 3), (59, 3)):
            with self.subTest(quanti):
                self.scrivi("mozza.col", byte[:quanti])
                esito, messaggi = self.esegui_json("filtra", self.sistema, "--da", "mozza.col", "-o", "prova.col")
                self.assertIn("non è un multiplo di 20", messaggi)
                self.assertEqual(esito["messaggi"][0]["icona"], "avviso")
                self.assertEqual(esito["sviluppate"], colonne)
                self.assertEqual(self.leggi("prova.col"), byte[:20 * colonne])

    def test_numeri_che_non_sono_di_un_gioco(self):
        self.rifiuta_sorgente(self.scrivi("strana.col", in_byte([(200, 201, 250)] * 7)), "errore: ")

    def test_sorgente_di_zeri(self):
        self.scrivi("zeri.col", bytes(200))
        nudo = self.crea(sistema([1, 2, 3], 2, [peso([1], range(1, 9))]), "nudo.sic")
        self.esegui("filtra", nudo, "--da", "zeri.col", "-o", "prova.col")
        self.assertEqual(self.leggi("prova.col"), b"")

    def test_il_sistema_non_si_sovrascrive(self):
        self.scrivi("tutte.col", in_byte([(1, 3)]))
        self.rifiuta("filtra", self.sistema, "--da", "tutte.col", "-o", self.sistema,
                     intatti=[self.sistema, "tutte.col"], dice="è il file da leggere")

    def test_file_troppo_grande_per_il_limite(self):
        self.scrivi("tutte.col", in_byte(combinations(NUMERI, 2)))
        esito, _ = self.rifiuta("filtra", self.sistema, "--da", "tutte.col", "-o", "tutte.col", "--json",
                                intatti=["tutte.col"], dice="Disco pieno", preexec_fn=comune.limita_file)
        self.assertIn('"critico"', esito)


if __name__ == "__main__":
    comune.avvia()
