# firme_prova.py - the signature of every example system: what a development leaves, as one line of prove/dati/firme.txt.
#
# A line that is not the one of the file is printed: a change of the engine that means it takes the new line over, and
# says why.

import hashlib
import json
import unittest
from pathlib import Path

import comune
from comune import Prova

RADICE = Path(__file__).resolve().parents[2]
FIRME = RADICE / "prove" / "dati" / "firme.txt"
ARCHIVIO = RADICE / "esempi" / "archivi" / "superenalotto.bd"
OPZIONI = {"emulatore": ["--gioco", "SuperEnalotto", "--archivio", ARCHIVIO]}
CONTATI = ("tipo", "ok", "ko", "rec", "valore", "valore2", "esito", "esitoRec")


def sistemi():
    """The examples, and systems that cover what these leave out; by name."""
    percorsi = [*RADICE.glob("esempi/*.json"), *RADICE.glob("prove/dati/firme/*.json")]
    return {p.stem: p for p in sorted(percorsi)}


def scritte():
    """The lines of the file, by the name in front of each; "#" begins a comment."""
    righe = [r for r in FIRME.read_text(encoding="utf-8").splitlines() if r and not r.startswith("#")]
    return {r.split()[0]: " ".join(r.split()) for r in righe}


def impronta(byte):
    return hashlib.sha256(byte).hexdigest()[:16]


class Firme(Prova):
    def firma(self, nome, percorso):
        """The line of a system."""
        self.esegui("crea", percorso, nome + ".sic")
        esito, messaggi = self.esegui_json("sviluppa", nome + ".sic", "-o", nome + ".col", *OPZIONI.get(nome, []))
        self.assertEqual(messaggi, "")
        colonne = self.leggi(nome + ".col")
        self.assertEqual(len(colonne), 20 * esito["condizionate"])
        conti = json.dumps([[c[campo] for campo in CONTATI] for c in esito["condizioni"]])
        return f"{nome} {esito['sviluppate']} {esito['condizionate']} {impronta(colonne)} {impronta(conti.encode())}"

    def test_ogni_sistema_ha_la_sua_firma(self):
        attese = scritte()
        for nome, percorso in sistemi().items():
            with self.subTest(nome):
                firma = self.firma(nome, percorso)
                self.assertEqual(firma, attese.get(nome), f"\n\nla firma adesso è\n{firma}\n"
                                 f"chi la cambia in {FIRME.relative_to(RADICE)} dice perché")

    def test_ogni_firma_ha_il_suo_sistema(self):
        self.assertEqual(list(scritte()), sorted(sistemi()))

    def test_i_sistemi_tengono_e_tolgono(self):
        for riga in scritte().values():
            _, esaminate, tenute, _, _ = riga.split()
            self.assertTrue(0 < int(tenute) < int(esaminate), riga)


if __name__ == "__main__":
    comune.avvia()
