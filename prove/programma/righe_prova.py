# righe_prova.py - "ordavel togli", "quadro" and "salva-condizioni": rows taken out, the board, rows copied out.

import json
import unittest

import comune
from comune import Prova

VUOTO = {"classe": 5, "numeri": list(range(1, 31))}


def ponte(punti, gruppo=""):
    return ["Ponte", "P\r\no\r\nn\r\nt\r\ne", punti, "05" if gruppo else "", gruppo]


SISTEMA = {**VUOTO, "righe": [ponte("01"), ponte("02", "3"), ponte("03"), ponte("04")]}


class ProvaSistema(Prova):
    def sistema(self, nome):
        return json.loads(self.esegui("mostra", nome, "--json")[0])

    def punti(self, nome):
        return [riga[2] for riga in self.sistema(nome)["righe"]]


class Togli(ProvaSistema):
    def test_un_tratto_nel_mezzo(self):
        nome = self.crea(SISTEMA)
        self.assertEqual(self.esegui("togli", nome, "--da", "2", "--a", "3"), (nome + ": 2 condizioni\n", ""))
        self.assertEqual(self.punti(nome), ["01", "04"])

    def test_una_sola_e_tutte(self):
        nome = self.crea(SISTEMA)
        self.esegui("togli", nome, "--da", "4", "--a", "4")
        self.assertEqual(self.punti(nome), ["01", "02", "03"])
        self.esegui("togli", nome, "--da", "1", "--a", "3")
        self.assertEqual(self.punti(nome), [])
        self.assertEqual(len(self.leggi(nome)), 317)

    def test_da_una_griglia_piena(self):
        nome = self.crea({**VUOTO, "righe": [ponte("01")] * 1999 + [ponte("02")]})
        self.esegui("togli", nome, "--da", "1", "--a", "1999")
        self.assertEqual(self.punti(nome), ["02"])

    def test_un_tratto_che_non_c_e(self):
        nome = self.crea(SISTEMA)
        for da, a in ((3, 5), (5, 5), (3, 2), (1, 2000), (1, 2147483647)):
            self.rifiuta("togli", nome, "--da", da, "--a", a, intatti=[nome], dice="il sistema ha 4 condizioni")
        for da, a in ((0, 1), (-1, 2), ("x", 1), (1, 99999999999)):
            self.rifiuta("togli", nome, "--da", da, "--a", a, intatti=[nome], atteso=2)
        self.rifiuta("togli", nome, "--da", 1, intatti=[nome], atteso=2, dice="--a")
        self.rifiuta("togli", self.crea(VUOTO, "vuoto.sic"), "--da", 1, "--a", 1, dice="non ha condizioni")


class Quadro(ProvaSistema):
    def gruppo(self, nome, n):
        return self.sistema(nome)["quadro"][n - 1]

    def test_un_gruppo_entra_in_uso_e_ne_esce(self):
        nome = self.crea(SISTEMA)
        _, messaggi = self.esegui("quadro", nome, "--gruppo", "3", "--minimo", "1", "--massimo", "2")
        self.assertEqual(messaggi, "")
        self.assertEqual(self.gruppo(nome, 3), "1,2,-1")
        self.esegui("quadro", nome, "--gruppo", "3", "--togli")
        self.assertTrue(self.gruppo(nome, 3).endswith(",0"))

    def test_gli_altri_gruppi_restano(self):
        nome = self.crea({**SISTEMA, "quadro": ["1,4,-1", "0,0,0", "2,2,-1"]})
        self.esegui("quadro", nome, "--gruppo", "3", "--minimo", "0", "--massimo", "1")
        self.assertEqual([self.gruppo(nome, n) for n in (1, 3)], ["1,4,-1", "0,1,-1"])

    def test_un_gruppo_senza_righe_avvisa(self):
        nome = self.crea(SISTEMA)
        _, messaggi = self.esegui("quadro", nome, "--gruppo", "20", "--minimo", "1", "--massimo", "1")
        self.assertEqual(messaggi, "avviso: nessuna condizione è nel gruppo 20\n")
        self.assertEqual(self.gruppo(nome, 20), "1,1,-1")

    def test_limiti_sbagliati(self):
        nome = self.crea(SISTEMA)
        for opzioni in (("--gruppo", 0, "--togli"), ("--gruppo", 21, "--togli"), ("--gruppo", 1),
                        ("--gruppo", 1, "--minimo", 1), ("--gruppo", 1, "--massimo", 1), ("--minimo", 1),
                        ("--gruppo", 1, "--minimo", 2, "--massimo", 1),
                        ("--gruppo", 1, "--minimo", 1, "--massimo", 1, "--togli"),
                        ("--gruppo", 1, "--minimo", 1, "--massimo", 2001),
                        ("--gruppo", 1, "--minimo", "x", "--massimo", 1)):
            with self.subTest(opzioni):
                self.rifiuta("quadro", nome, *opzioni, intatti=[nome], atteso=2)


class SalvaCondizioni(ProvaSistema):
    def test_un_tratto_e_tutte(self):
        nome = self.crea(SISTEMA)
        attese = [b"Ponte[R]P\r\no\r\nn\r\nt\r\ne[R]" + p + b"[R]\0" for p in
                  (b"01[R][R]", b"02[R]05[R]3", b"03[R][R]", b"04[R][R]")]
        uscita, _ = self.esegui("salva-condizioni", nome, "--da", "2", "--a", "3", "x.cnd")
        self.assertEqual(uscita, "x.cnd: 2 condizioni\n")
        self.assertEqual(self.leggi("x.cnd"), b"".join(attese[1:3]))
        self.esegui("salva-condizioni", nome, "x.cnd")
        self.assertEqual(self.leggi("x.cnd"), b"".join(attese))

    def test_andata_e_ritorno(self):
        primo = self.crea(SISTEMA, "primo.sic")
        secondo = self.crea(VUOTO, "secondo.sic")
        self.esegui("salva-condizioni", primo, "x.cnd")
        self.esegui("aggiungi", secondo, "--file", "x.cnd")
        self.assertEqual(self.sistema(secondo)["righe"], self.sistema(primo)["righe"])

    def test_quello_che_non_si_puo(self):
        nome = self.crea(SISTEMA)
        vecchio = self.scrivi("x.cnd", b"di prima")
        for opzioni in (("--da", 5, vecchio), ("--da", 3, "--a", 2, vecchio), ("--a", 5, vecchio), (nome,),
                        ("manca/x.cnd",), (".",), ("",)):
            with self.subTest(opzioni):
                self.rifiuta("salva-condizioni", nome, *opzioni, intatti=[nome, vecchio])
        self.rifiuta("salva-condizioni", nome, "--da", "-1", vecchio, intatti=[nome, vecchio], atteso=2)
        self.rifiuta("salva-condizioni", nome, intatti=[nome, vecchio], atteso=2)

    def test_un_disco_pieno_lascia_il_file_di_prima(self):
        nome = self.crea(SISTEMA)
        vecchio = self.scrivi("x.cnd", b"di prima")
        self.rifiuta("salva-condizioni", nome, vecchio, intatti=[nome, vecchio], preexec_fn=comune.limita_file)


if __name__ == "__main__":
    comune.avvia()
