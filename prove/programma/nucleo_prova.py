# nucleo_prova.py - ORDAVEL_NUCLEO: which instruction set runs, that it makes no difference, and names that are wrong.

import re
import unittest

import comune
from comune import Prova
from definizioni import (LinkClose, LinkOpen, Verifica, consecutivi, in_byte, pari, peso, punti_colonna, sistema,
                         sviluppa)

NOMI = ("comune", "avx2", "avx512")
NUMERI = range(1, 23)
CONDIZIONI = [peso([1, 2, 3], range(12, 30), range(30, 40), 1), LinkOpen(), pari({2, 3}), consecutivi({0, 1}),
              LinkClose(1, 2), punti_colonna([1, 5, 9, 13, 17, 21], {1, 2}, {3}, 1)]
QUADRO = [(1, 1, 1)]


class Nucleo(Prova):
    def nucleo(self, chiesto=None):
        """The name of what runs, as the program tells it."""
        ambiente = {} if chiesto is None else {"ORDAVEL_NUCLEO": chiesto}
        return re.search(r"nucleo (\w+)", self.esegui("--version", env=ambiente)[0])[1]

    def presenti(self):
        """The names that may be asked for here: those up to the widest."""
        return NOMI[:NOMI.index(self.nucleo("")) + 1]

    def test_gira_quello_chiesto(self):
        for nome in self.presenti():
            with self.subTest(nome):
                self.assertEqual(self.nucleo(nome), nome)

    def test_senza_nome_il_migliore(self):
        self.assertIn("comune", self.presenti())
        self.assertEqual(self.nucleo(""), self.presenti()[-1])

    def test_tutti_danno_gli_stessi_file(self):
        nome = self.crea(sistema(NUMERI, 6, CONDIZIONI, QUADRO))
        attese = in_byte(sviluppa(NUMERI, 6, Verifica(CONDIZIONI, QUADRO)))
        self.assertGreater(len(attese), 0)
        for nucleo in ("", *self.presenti()):
            with self.subTest(nucleo):
                esito, _ = self.esegui_json("sviluppa", nome, "-o", "prova.col", env={"ORDAVEL_NUCLEO": nucleo})
                self.assertEqual(self.leggi("prova.col"), attese)
                self.assertEqual(esito["condizionate"] * 20, len(attese))

    def test_nome_sconosciuto(self):
        nome = self.crea(sistema(NUMERI, 6, CONDIZIONI, QUADRO))
        self.scrivi("prova.col", b"vecchio")
        sbagliati = ["pippo", "AVX2", " comune", "comune,avx2", *NOMI[len(self.presenti()):]]
        for sbagliato in sbagliati:
            for parole in (["sviluppa", nome, "-o", "prova.col"], ["mostra", nome], ["--version"]):
                with self.subTest(f"{sbagliato} {parole[0]}"):
                    uscita, messaggi = self.rifiuta(
                        *parole, atteso=2, intatti=[nome, "prova.col"], env={"ORDAVEL_NUCLEO": sbagliato},
                        dice=["errore: uso: ", "ORDAVEL_NUCLEO", f'"{sbagliato}"', ", ".join(self.presenti())])
                    self.assertEqual(uscita, "")
                    self.assertEqual("processore non ha" in messaggi, sbagliato in NOMI)

    def test_l_aiuto_si_mostra_comunque(self):
        self.esegui("--help", env={"ORDAVEL_NUCLEO": "pippo"})


if __name__ == "__main__":
    comune.avvia()
