# sviluppa_prova.py - "ordavel sviluppa" against developments worked out here.

import os
import struct
import unittest

import comune
from comune import Prova
from definizioni import (LinkClose, LinkOpen, Verifica, ampiezza, consecutivi, dispari, in_byte, pari, peso,
                         punti_colonna, resto_di, sistema, sviluppa)

NUMERI = [1, 2, 3, 5, 8, 13, 14, 21, 34, 35, 55, 56, 57, 89]


class Sviluppo(Prova):
    """The file and the counts are those of the definitions."""

    def confronta(self, numeri, classe, condizioni=(), quadro=(), riduzione=0):
        """Develops both ways. Gives the columns and the object that the program printed."""
        verifica = Verifica(condizioni, quadro)
        attese = sviluppa(numeri, classe, verifica, riduzione)
        esito, _ = self.esegui_json(
            "sviluppa", self.crea(sistema(numeri, classe, condizioni, quadro, riduzione)), "-o", "prova.col")
        self.assertEqual(self.leggi("prova.col"), in_byte(attese))
        self.assertEqual(esito["condizionate"], len(attese))
        self.assertFalse(esito["interrotto"])
        self.assertEqual([c["id"] for c in esito["condizioni"]], list(range(1, len(condizioni) + 1)))
        self.assertEqual([c["nome"] for c in esito["condizioni"]], [c.celle[0] for c in condizioni])
        for contatore in ("ok", "ko", "rec"):
            contati = [c[contatore] for c in esito["condizioni"]]
            self.assertEqual(contati, [getattr(verifica, contatore)[i] for i in range(len(condizioni))], contatore)
        return attese, esito

    def test_senza_condizioni_tutte_le_colonne_in_ordine(self):
        attese, esito = self.confronta([20, 3, 12, 7], 2)
        self.assertEqual(attese, [(3, 7), (3, 12), (3, 20), (7, 12), (7, 20), (12, 20)])
        self.assertEqual((esito["integrali"], esito["sviluppate"]), (6, 6))

    def test_una_sola_colonna(self):
        attese, _ = self.confronta([1, 45, 90], 3)
        self.assertEqual(len(attese), 1)

    def test_ogni_condizione_da_sola(self):
        for condizione in (peso([1, 2, 5], range(40, 91)), pari({1, 3}), dispari({0, 2, 4}), consecutivi({1, 2}),
                           punti_colonna([1, 5, 13, 21, 35, 89], {2, 3}), resto_di(7, {0, 3, 6}),
                           ampiezza(range(33, 56))):
            with self.subTest(condizione.celle[0]):
                attese, esito = self.confronta(NUMERI, 5, [condizione])
                self.assertTrue(0 < len(attese) < esito["integrali"], "the condition must cut and keep")

    def test_condizioni_insieme(self):
        attese, esito = self.confronta(
            NUMERI, 5, [peso([1, 2, 3, 4, 5], range(80, 221)), pari({1, 2, 3}), consecutivi({0, 1}),
                        punti_colonna([2, 8, 14, 34, 56], {1, 2}), resto_di(4, {0, 1, 3})])
        self.assertTrue(0 < len(attese) < esito["integrali"])

    def test_valori_della_ultima_colonna(self):
        _, esito = self.confronta([10, 20, 30, 41], 3, [peso([1, 3], range(1, 60)), pari({2}, {2}, 1)])
        ultima = [(c["tipo"], c["valore"], c["esito"], c["esitoRec"]) for c in esito["condizioni"]]
        self.assertEqual(ultima, [(5, 61, False, False), (4, 2, True, True)])

    def test_recupero_nei_limiti_del_gruppo(self):
        condizioni = [peso([1, 2, 3, 4], range(40, 91), range(91, 131), 2), pari({1}, {0, 2, 3}, 2),
                      consecutivi({0}, {1, 2}, 2), ampiezza(range(20, 90))]
        tenute = {}
        for limiti in ((1, 1, 1), (1, 2, 1), (2, 2, 1), (3, 3, 1), (1, 3, 0)):
            with self.subTest(limiti=limiti):
                attese, _ = self.confronta(NUMERI, 4, condizioni, [(1, 3, 0), limiti])
                tenute[limiti] = len(attese)
        self.assertEqual(len(set(tenute.values())), len(tenute), "every limit must make a difference")

    def test_gruppo_senza_riga_nel_quadro_non_recupera(self):
        condizioni = [peso([1, 2, 3], range(20, 51), range(51, 120), 3)]
        senza, _ = self.confronta(NUMERI, 3, condizioni)
        con, _ = self.confronta(NUMERI, 3, condizioni, [(1, 1, 0), (1, 1, 0), (1, 1, 1)])
        self.assertLess(len(senza), len(con))

    def test_link(self):
        dentro = [pari({2}), consecutivi({0}), resto_di(3, {1}), ampiezza(range(30, 60))]
        for conteggi in ((0,), (2,), (0, 4), (1, 2, 3)):
            with self.subTest(conteggi=conteggi):
                attese, esito = self.confronta(
                    NUMERI, 4, [peso([1], range(1, 9)), LinkOpen(), *dentro, LinkClose(*conteggi)])
                self.assertTrue(0 < len(attese) < esito["integrali"])

    def test_link_uno_dentro_un_altro(self):
        # The outer one reads the list of what stands where it has moved to: here the numbers of "Punti Col.".
        condizioni = [LinkOpen(), LinkOpen(), pari({2}), resto_di(2, {0}), LinkClose(1, 2),
                      punti_colonna([1, 2, 3], {1, 2}), ampiezza(range(20, 60)), resto_di(5, {0, 1}), LinkClose(3)]
        attese, esito = self.confronta(NUMERI, 4, condizioni)
        self.assertTrue(0 < len(attese) < esito["integrali"])

    def test_link_con_recupero_dentro(self):
        condizioni = [LinkOpen(), pari({2}, {1, 3}, 1), resto_di(3, {0}, {1}, 1), consecutivi({0}), LinkClose(2)]
        con, _ = self.confronta(NUMERI, 4, condizioni, [(2, 2, 1)])
        senza, _ = self.confronta(NUMERI, 4, condizioni, [(2, 2, 0)])
        self.assertNotEqual(con, senza)

    def test_riduzione(self):
        tenute = [len(self.confronta(NUMERI, 5, [pari({1, 2})], riduzione=r)[0]) for r in range(6)]
        self.assertEqual(tenute, sorted(tenute[:5], reverse=True) + tenute[:1])
        self.assertEqual(len(set(tenute[:4])), 4, "each reduction must thin out more")

    def test_riduzione_oltre_un_blocco(self):
        # The first column behind the ten thousandth kept one is not compared with it.
        attese, _ = self.confronta(range(1, 23), 6, riduzione=1)
        self.assertGreater(len(attese), 10000)
        vicine = set(attese[9999]) & set(attese[10000])
        self.assertGreaterEqual(len(vicine), 5, "the example must show the difference")

    def test_novanta_numeri(self):
        attese, _ = self.confronta(range(1, 91), 3, [peso([1, 2, 3], range(130, 141)), consecutivi({0})])
        self.assertGreater(len(attese), 3000)


class Opzioni(Prova):
    """What else the command takes and gives."""

    def setUp(self):
        super().setUp()
        self.condizioni = [peso([1, 2, 3], range(30, 91)), pari({1, 2})]
        self.sistema = self.crea(sistema(range(1, 31), 3, self.condizioni))

    def test_tabella_per_chi_legge(self):
        uscita, messaggi = self.esegui("sviluppa", self.sistema, "-o", "prova.col")
        verifica = Verifica(self.condizioni)
        tenute = len(sviluppa(range(1, 31), 3, verifica))
        self.assertEqual(messaggi, "")
        self.assertIn("4.060", uscita)
        self.assertIn("prova.col", uscita)
        for riga, nome in enumerate(("Peso", "Pari-Dispari")):
            testo = next(r for r in uscita.splitlines() if nome in r)
            for contati in (verifica.ok[riga], verifica.ko[riga]):
                self.assertIn(f"{contati:,}".replace(",", "."), testo)
                self.assertIn(f"{100 * contati / 4060:.1f} %".replace(".", ","), testo)
        self.assertIn(f"{tenute:,}".replace(",", "."), uscita)

    def test_chiavi_del_risultato(self):
        esito, _ = self.esegui_json("sviluppa", self.sistema, "-o", "prova.col")
        self.assertEqual(set(esito), {"integrali", "sviluppate", "condizionate", "secondi", "interrotto",
                                      "messaggi", "condizioni"})
        self.assertEqual(set(esito["condizioni"][0]), {"id", "tipo", "nome", "ok", "ko", "rec", "valore", "valore2",
                                                       "esito", "esitoRec"})
        self.assertGreaterEqual(esito["secondi"], 0)
        self.assertEqual([(m["icona"], m["titolo"]) for m in esito["messaggi"]], [("informazione", "Sviluppo")])
        self.assertRegex(esito["messaggi"][0]["testo"], r"^Fine sviluppo \r\n\d\d:\d\d:\d\d$")

    def test_stessi_byte_due_volte(self):
        for nome in ("uno.col", "due.col"):
            self.esegui("sviluppa", self.sistema, "-o", nome)
        self.assertEqual(self.leggi("uno.col"), self.leggi("due.col"))

    def test_file_vecchio_sostituito(self):
        self.scrivi("prova.col", b"x" * 1000000)
        self.esegui("sviluppa", self.sistema, "-o", "prova.col")
        self.assertEqual(self.leggi("prova.col"), in_byte(sviluppa(range(1, 31), 3, Verifica(self.condizioni))))

    def test_un_collegamento_resta_tale(self):
        self.scrivi("vero.col", b"")
        (self.cartella / "altro.col").symlink_to("vero.col")
        self.esegui("sviluppa", self.sistema, "-o", "altro.col")
        self.assertTrue((self.cartella / "altro.col").is_symlink())
        self.assertGreater(len(self.leggi("vero.col")), 0)

    def test_nomi_difficili(self):
        for nome in ("à è ì.col", "*.col", "-", "a" * 250 + ".col", "senza"):
            with self.subTest(nome):
                self.esegui("sviluppa", self.sistema, "-o", nome)
                self.assertGreater(len(self.leggi(nome)), 0)

    def test_cartella_temporanea_propria(self):
        propria = self.cartella / "propria"
        propria.mkdir()
        self.scrivi("propria/Sviluppo.col", b"di un altro")
        self.esegui("sviluppa", self.sistema, "-o", "prova.col", "--temp", propria)
        self.assertEqual(os.listdir(propria), ["Sviluppo.col"])
        self.assertEqual(self.leggi("propria/Sviluppo.col"), b"di un altro")

    def test_cartella_temporanea_che_manca_si_crea(self):
        self.esegui("sviluppa", self.sistema, "-o", "prova.col", "--temp", "nuova/cartella")
        self.assertEqual(os.listdir(self.cartella / "nuova" / "cartella"), [])

    def test_il_gioco_non_cambia_le_colonne(self):
        self.esegui("sviluppa", self.sistema, "-o", "uno.col")
        for gioco in ("Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto", "winforlife"):
            with self.subTest(gioco):
                self.esegui("sviluppa", self.sistema, "-o", "due.col", "--gioco", gioco)
                self.assertEqual(self.leggi("uno.col"), self.leggi("due.col"))

    def test_colonne_portate_dal_sistema_non_contano(self):
        self.scrivi("pieno.sic", self.leggi(self.sistema) + b"COLONNE" + in_byte([(1, 2, 3)] * 5))
        self.esegui("sviluppa", self.sistema, "-o", "uno.col")
        self.esegui("sviluppa", "pieno.sic", "-o", "due.col")
        self.assertEqual(self.leggi("uno.col"), self.leggi("due.col"))


class Rifiuti(Prova):
    """What cannot be done is refused in words, and nothing is lost."""

    def setUp(self):
        super().setUp()
        self.sistema = self.crea(sistema(range(1, 31), 4, [pari({1, 2})]))
        self.scrivi("vecchio.col", b"vecchio")

    def rifiuta_uscita(self, uscita, dice, **opzioni):
        return self.rifiuta("sviluppa", self.sistema, "-o", uscita, intatti=[self.sistema, "vecchio.col"], dice=dice,
                            **opzioni)

    def test_uscita_che_non_si_puo_scrivere(self):
        (self.cartella / "cartella").mkdir()
        for uscita, dice in (("manca/prova.col", "manca/prova.col"), ("cartella", "cartella"), ("/dev/full", "/dev/full"),
                             ("vecchio.col/", "vecchio.col/"), ("", "nome"), ("a" * 300, "a" * 300)):
            with self.subTest(uscita[:20]):
                self.rifiuta_uscita(uscita, ["errore: ", dice])

    def test_il_sistema_non_si_sovrascrive(self):
        (self.cartella / "altro.sic").symlink_to(self.sistema)
        for uscita in (self.sistema, "altro.sic"):
            with self.subTest(uscita):
                self.rifiuta_uscita(uscita, "è il file da leggere")

    def test_cartella_in_sola_lettura(self):
        opzioni = self.senza_privilegi()
        self.cartella.chmod(0o555)
        self.addCleanup(self.cartella.chmod, 0o755)
        self.rifiuta_uscita("prova.col", "Permesso negato: prova.col", **opzioni)
        self.rifiuta_uscita("vecchio.col", "Permesso negato: vecchio.col", **opzioni)

    def test_file_in_sola_lettura(self):
        opzioni = self.senza_privilegi()
        (self.cartella / "vecchio.col").chmod(0o444)
        self.rifiuta_uscita("vecchio.col", "Permesso negato: vecchio.col", **opzioni)

    def test_file_troppo_grande_per_il_limite(self):
        esito, messaggi = self.rifiuta("sviluppa", self.sistema, "-o", "vecchio.col", "--json",
                                       intatti=["vecchio.col"], dice="Disco pieno", preexec_fn=comune.limita_file)
        self.assertIn('"critico"', esito)
        self.assertIn("errore: ", messaggi)

    def test_disco_pieno(self):
        disco = self.monta_disco("disco", 65536)
        (disco / "vecchio.col").write_bytes(b"prezioso")
        for opzioni in (["-o", disco / "vecchio.col"], ["-o", disco / "nuovo.col"],
                        ["-o", "vecchio.col", "--temp", disco]):
            with self.subTest(str(opzioni)):
                self.esegui("sviluppa", self.sistema, *opzioni, atteso=1)
                self.assertEqual(os.listdir(disco), ["vecchio.col"])
                self.assertEqual((disco / "vecchio.col").read_bytes(), b"prezioso")
                self.assertEqual(self.leggi("vecchio.col"), b"vecchio")

    def test_temporanea_che_non_si_puo_usare(self):
        for cartella in (self.sistema, "/proc/nessuna"):
            with self.subTest(cartella):
                self.rifiuta("sviluppa", self.sistema, "-o", "vecchio.col", "--temp", cartella,
                             intatti=["vecchio.col"], dice=["errore: ", cartella])

    def test_temporanea_del_sistema_che_manca(self):
        uscita, _ = self.rifiuta_uscita("vecchio.col", "TMPDIR", env={"TMPDIR": "/manca"})
        self.assertEqual(uscita, "")

    def test_pronostico_troppo_piccolo(self):
        piccolo = self.crea(sistema([1, 2], 5), "piccolo.sic")
        self.rifiuta("sviluppa", piccolo, "-o", "vecchio.col", intatti=["vecchio.col"],
                     dice="avviso: Impostare il pronostico")

    def test_link_che_non_tornano(self):
        _, messaggi = self.esegui("crea", self.scrivi("storto.json", sistema(range(1, 9), 4, [LinkOpen(), pari({1})])),
                                  "storto.sic")
        self.assertIn("avviso: Link non valide", messaggi)
        self.rifiuta("sviluppa", "storto.sic", "-o", "vecchio.col", intatti=["vecchio.col"],
                     dice="avviso: Link non valide")

    def test_valore_fuori_dalla_lista(self):
        # A remainder of 11 or more has no place in a list: the run fails on its way.
        sbagliato = self.crea(sistema(range(1, 31), 4, [resto_di(50, {1})]), "sbagliato.sic")
        self.rifiuta("sviluppa", sbagliato, "-o", "vecchio.col", intatti=["vecchio.col"],
                     dice="Indice fuori dai limiti")

    def test_file_di_sistema_rotti(self):
        byte = self.leggi(self.sistema)
        for nome, contenuto in (("vuoto", b""), ("corto", byte[:316]), ("mozzo", byte[:-1]), ("testo", b"ciao" * 99),
                                ("estraneo", b"\x7fELF" + b"\x5a" * 313),
                                ("zeri", bytes(317 + 334))):
            with self.subTest(nome):
                self.rifiuta("sviluppa", self.scrivi("rotto.sic", contenuto), "-o", "vecchio.col",
                             intatti=["vecchio.col", "rotto.sic"])

    def test_ogni_troncatura(self):
        byte = self.leggi(self.sistema)
        for lunghezza in range(0, len(byte), 40):
            with self.subTest(lunghezza):
                self.rifiuta("sviluppa", self.scrivi("mozzo.sic", byte[:lunghezza]), "-o", "vecchio.col",
                             intatti=["vecchio.col"], dice="formato non più supportato")

    def test_record_con_numeri_assurdi(self):
        byte = bytearray(self.leggi(self.sistema))
        struct.pack_into("<h", byte, 317, 17)  # a sequence whose length is what the fields below say
        byte[317 + 2:] = b"\xff\x7f" * ((len(byte) - 317 - 2) // 2)
        struct.pack_into("<h", byte, 317, 17)
        self.rifiuta("sviluppa", self.scrivi("assurdo.sic", bytes(byte)), "-o", "vecchio.col", intatti=["vecchio.col"])

    def test_file_di_sistema_enormi(self):
        for lunghezza in (40 << 30, 317 + 334 * 100000000):
            with open(self.cartella / "enorme.sic", "wb") as file:
                file.truncate(lunghezza)
            with self.subTest(lunghezza):
                _, messaggi = self.esegui("sviluppa", "enorme.sic", "-o", "vecchio.col", atteso=1)
                self.assertIn("formato non più supportato", messaggi)
                self.assertEqual(self.leggi("vecchio.col"), b"vecchio")

    def test_sistema_che_non_si_legge(self):
        os.mkfifo(self.cartella / "tubo")
        (self.cartella / "cartella").mkdir()
        for nome in ("manca.sic", "manca/manca.sic", "tubo", "cartella"):
            with self.subTest(nome):
                self.rifiuta("sviluppa", nome, "-o", "vecchio.col", intatti=["vecchio.col"], dice=["errore: ", nome])


if __name__ == "__main__":
    comune.avvia()
