# archivio_prova.py - "ordavel archivio": draw archives from a text and back, and what they are for.

import json
import random
import unittest
from itertools import combinations
from pathlib import Path

import comune
from comune import Prova

RUOTE = ["Bari", "Cagliari", "Firenze", "Genova", "Milano", "Napoli", "Palermo", "Roma", "Torino", "Venezia", "Nazionale"]
GIOCHI = {"Lotto": (67, 12, 55), "10ELotto": (32, 12, 20), "10ELotto5M": (32, 12, 20), "SuperEnalotto": (18, 12, 6),
          "WinForLife": (28, 17, 10)}


def nomi(gioco):
    if gioco == "Lotto":
        return ["Data"] + [f"{ruota}{i}" for ruota in RUOTE for i in range(1, 6)]
    return ["Data"] + [f"N{i}" for i in range(1, GIOCHI[gioco][2] + 1)]


def estrazioni(gioco, quante, seme=1):
    """Invented draws."""
    sorte = random.Random(seme)
    gruppi = 11 if gioco == "Lotto" else 1
    per_gruppo = GIOCHI[gioco][2] // gruppi
    return [[n for _ in range(gruppi) for n in sorte.sample(range(1, 91), per_gruppo)] for _ in range(quante)]


def testo(gioco, righe, separatore=";", data="01/02/2020", fine="\n"):
    linee = [separatore.join(nomi(gioco))] + [separatore.join([data, *map(str, riga)]) for riga in righe]
    return fine.join(linee) + fine


def byte(gioco, righe):
    lungo, primo, quanti = GIOCHI[gioco]
    return b"".join(bytes(primo) + bytes(riga) + bytes(lungo - primo - quanti) for riga in righe)


class Archivio(Prova):
    def importa(self, gioco, contenuto, **opzioni):
        return self.esegui("archivio", "importa", "--gioco", gioco, self.scrivi("e.csv", contenuto), "a.bd", **opzioni)

    def test_ogni_gioco_e_ogni_separatore(self):
        for gioco in GIOCHI:
            for separatore in ";,\t":
                with self.subTest(gioco + separatore):
                    righe = estrazioni(gioco, 7)
                    uscita, _ = self.importa(gioco, testo(gioco, righe, separatore))
                    self.assertEqual(self.leggi("a.bd"), byte(gioco, righe))
                    self.assertEqual(uscita, f"a.bd: 7 estrazioni di {gioco}\n")

    def test_andata_e_ritorno(self):
        for gioco in GIOCHI:
            righe = estrazioni(gioco, 25, 3)
            self.importa(gioco, testo(gioco, righe))
            self.esegui("archivio", "esporta", "--gioco", gioco, "a.bd", "b.csv")
            self.assertEqual(self.leggi("b.csv").decode(), testo(gioco, righe, data=""))
            self.esegui("archivio", "importa", "--gioco", gioco, "b.csv", "b.bd")
            self.assertEqual(self.leggi("b.bd"), self.leggi("a.bd"))

    def test_forme_del_testo(self):
        righe = estrazioni("SuperEnalotto", 3)
        attesi = byte("SuperEnalotto", righe)
        for contenuto in (testo("SuperEnalotto", righe, fine="\r\n"), "\ufeff" + testo("SuperEnalotto", righe),
                          testo("SuperEnalotto", righe).lower(), testo("SuperEnalotto", righe).rstrip("\n"),
                          testo("SuperEnalotto", righe) + "\n\n", testo("SuperEnalotto", righe, separatore=" ; "),
                          testo("SuperEnalotto", righe).replace("Data", '"Data"'), testo("SuperEnalotto", righe, data="2020-02-01")):
            self.importa("SuperEnalotto", contenuto)
            self.assertEqual(self.leggi("a.bd"), attesi, contenuto)

    def test_un_numero_assente_e_zero_o_nulla(self):
        self.importa("SuperEnalotto", testo("SuperEnalotto", [[1, 2, 3, 0, 0, ""]]))
        self.assertEqual(self.leggi("a.bd"), byte("SuperEnalotto", [[1, 2, 3, 0, 0, 0]]))

    def test_una_riga_sbagliata_dice_quale_e_lascia_l_archivio(self):
        buone = estrazioni("SuperEnalotto", 2)
        vecchio = self.scrivi("a.bd", b"di prima")
        casi = {"91": "non è un numero", "x": "non è un numero", "-1": "non è un numero", "1.5": "non è un numero",
                str(buone[0][0]): "due volte"}
        for valore, perche in casi.items():
            riga = [*buone[0][:5], valore]
            contenuto = testo("SuperEnalotto", [buone[1], riga, buone[0]])
            self.rifiuta("archivio", "importa", "--gioco", "SuperEnalotto", self.scrivi("e.csv", contenuto), vecchio,
                         intatti=[vecchio], dice=["riga 3", perche])
        for riga, perche in ((buone[0][:5], "6 parti"), (buone[0] + [7], "8 parti")):
            contenuto = testo("SuperEnalotto", [riga])
            self.rifiuta("archivio", "importa", "--gioco", "SuperEnalotto", self.scrivi("e.csv", contenuto), vecchio,
                         intatti=[vecchio], dice=["riga 2", perche])

    def test_testi_che_non_sono_estrazioni(self):
        vecchio = self.scrivi("a.bd", b"di prima")
        for contenuto in (b"", b"\n", b"Data;N1\n", b"\0" * 100, b"x" * 100000, testo("WinForLife", []).encode(),
                          (testo("SuperEnalotto", []) + "ieri;1;2;3;4;5;6\n").encode(),
                          (testo("SuperEnalotto", []) + "y" * 9000).encode()):
            self.rifiuta("archivio", "importa", "--gioco", "SuperEnalotto", self.scrivi("e.csv", contenuto), vecchio,
                         intatti=[vecchio], dice="errore: e.csv: riga ")
        self.rifiuta("archivio", "importa", "manca.csv", vecchio, intatti=[vecchio], dice="manca.csv")
        self.rifiuta("archivio", "importa", "--gioco", "Tombola", "e.csv", vecchio, intatti=[vecchio], atteso=2)
        self.rifiuta("archivio", atteso=2, dice="manca il comando")
        for parte in ("importa", "esporta"):
            self.rifiuta("archivio", parte, "--gioco", "", vecchio, "e.csv", intatti=[vecchio], atteso=2, dice="gioco")
        self.rifiuta("archivio", "info", "--gioco", "", vecchio, atteso=2, dice="gioco")

    def test_info(self):
        righe = estrazioni("SuperEnalotto", 3)
        self.scrivi("a.bd", byte("SuperEnalotto", righe))
        uscita, messaggi = self.esegui("archivio", "info", "--gioco", "SuperEnalotto", "a.bd")
        self.assertIn("3 estrazioni di 6 numeri", uscita)
        self.assertIn(" ".join(map(str, righe[-1])), uscita)
        self.assertEqual(messaggi, "")
        _, messaggi = self.esegui("archivio", "info", "a.bd")
        self.assertIn("non è un multiplo di 67", messaggi)

    def test_info_del_lotto_ha_una_linea_per_ruota(self):
        righe = estrazioni("Lotto", 2)
        uscita, _ = self.esegui("archivio", "info", self.scrivi("a.bd", byte("Lotto", righe)))
        attese = [f"  {ruota} " + " ".join(map(str, righe[-1][5 * i:5 * i + 5])) for i, ruota in enumerate(RUOTE)]
        self.assertEqual(uscita.splitlines()[2:], attese)

    def test_info_di_un_archivio_vuoto_non_inventa_estrazioni(self):
        uscita, messaggi = self.esegui("archivio", "info", self.scrivi("a.bd", b""))
        self.assertEqual(uscita, "Lotto: 0 estrazioni di 55 numeri\n")
        self.assertEqual(messaggi, "")
        self.esegui("archivio", "esporta", "a.bd", "e.csv")
        self.assertEqual(self.leggi("e.csv").decode(), testo("Lotto", []))

    def test_info_dubita_di_numeri_impossibili(self):
        for numero, dubbio in ((90, False), (91, True), (255, True)):
            self.scrivi("a.bd", byte("SuperEnalotto", [[91] * 6, [1, 2, 3, 4, 5, numero]]))
            _, messaggi = self.esegui("archivio", "info", "--gioco", "SuperEnalotto", "a.bd")
            self.assertEqual("oltre il 90" in messaggi, dubbio, numero)

    def test_molte_estrazioni_vanno_e_vengono_a_blocchi(self):
        for quante in (10000, 10001):
            righe = [[1, 2, 3, 4, 5, 6 + i % 85] for i in range(quante)]
            self.importa("SuperEnalotto", testo("SuperEnalotto", righe))
            self.assertEqual(self.leggi("a.bd"), byte("SuperEnalotto", righe))
            self.esegui("archivio", "esporta", "--gioco", "SuperEnalotto", "a.bd", "b.csv")
            self.assertEqual(self.leggi("b.csv").decode(), testo("SuperEnalotto", righe, data=""))

    def test_gli_archivi_di_esempio_sono_fatti_dai_loro_testi(self):
        cartella = Path(__file__).resolve().parents[2] / "esempi" / "archivi"
        for gioco in GIOCHI:
            nome = gioco.lower()
            self.esegui("archivio", "importa", "--gioco", gioco, cartella / f"{nome}.csv", "a.bd")
            self.assertEqual(self.leggi("a.bd"), (cartella / f"{nome}.bd").read_bytes(), gioco)

    def test_un_disco_pieno_lascia_l_archivio(self):
        vecchio = self.scrivi("a.bd", b"di prima")
        file = self.scrivi("e.csv", testo("Lotto", estrazioni("Lotto", 50)))
        self.rifiuta("archivio", "importa", file, vecchio, intatti=[vecchio], preexec_fn=comune.limita_file)


class Emulatore(Prova):
    """Developments with an emulator over an archive."""

    def sviluppa(self, minimo, *opzioni):
        limiti = "".join(f"P{p}) {minimo if p == 2 else 0} - 99\r\n" for p in range(6))
        nome = self.crea({"classe": 5, "numeri": list(range(1, 13)),
                          "righe": [["Emulatore", "[20]\r\n" + limiti, "", "", ""]]})
        return self.esegui("sviluppa", nome, "-o", "x.col", *opzioni)

    @staticmethod
    def attese(righe, minimo):
        ultime = [set(r) for r in righe[-20:]]
        return [c for c in combinations(range(1, 13), 5) if sum(len(u & set(c)) == 2 for u in ultime) >= minimo]

    def test_le_ultime_estrazioni_della_ruota(self):
        righe = estrazioni("Lotto", 60, 5)
        self.scrivi("a.bd", byte("Lotto", righe))
        for ruota, indice in (("Bari", 0), ("roma", 7), ("Nazionale", 10)):
            _, messaggi = self.sviluppa(1, "--archivio", "a.bd", "--ruota", ruota)
            self.assertEqual(messaggi, "")
            attese = self.attese([riga[indice * 5:indice * 5 + 5] for riga in righe], 1)
            self.assertEqual(self.leggi("x.col"), b"".join(bytes(c) + bytes(15) for c in attese))

    def test_un_altro_gioco(self):
        righe = estrazioni("SuperEnalotto", 20, 5)
        self.scrivi("a.bd", byte("SuperEnalotto", righe))
        self.sviluppa(1, "--archivio", "a.bd", "--gioco", "SuperEnalotto")
        self.assertEqual(len(self.leggi("x.col")) // 20, len(self.attese(righe, 1)))

    def test_senza_estrazioni_bastanti_lo_dice(self):
        self.scrivi("a.bd", byte("Lotto", estrazioni("Lotto", 19)))
        _, messaggi = self.sviluppa(0, "--archivio", "a.bd")
        self.assertEqual(messaggi, "avviso: Filtro emulatore non creato\n")
        _, messaggi = self.sviluppa(0)
        self.assertEqual(messaggi, "avviso: Filtro emulatore non creato\n")

    def test_col_dieci_e_lotto_non_si_crea_e_si_dice_perche(self):
        self.scrivi("a.bd", byte("10ELotto", estrazioni("10ELotto", 60)))
        for gioco in ("10ELotto", "10ELotto5M"):
            _, messaggi = self.sviluppa(0, "--archivio", "a.bd", "--gioco", gioco)
            self.assertEqual(messaggi, f"avviso: il filtro emulatore non si crea per il gioco {gioco}, con nessun archivio\n"
                                       "avviso: Filtro emulatore non creato\n")

    def test_un_archivio_guasto_si_chiama_per_nome(self):
        self.scrivi("a.bd", bytes([255]) * 67 * 20)
        nome = self.crea({"classe": 5, "numeri": list(range(1, 8)), "righe": [["Emulatore", "[20]\r\nP0) 0 - 20\r\n", "", "", ""]]})
        self.rifiuta("sviluppa", nome, "-o", "x.col", "--archivio", "a.bd", dice="a.bd")

    def test_ruota_e_archivio_sbagliati(self):
        nome = self.crea({"classe": 5, "numeri": list(range(1, 8))})
        self.rifiuta("sviluppa", nome, "-o", "x.col", "--ruota", "Rome", atteso=2, dice='forse "Roma"')
        self.rifiuta("sviluppa", nome, "-o", "x.col", "--archivio", "manca.bd", dice="manca.bd")


class Effetto(Prova):
    def test_come_la_finestra(self):
        nome = self.crea({"classe": 5, "numeri": list(range(1, 11)), "righe": [
            ["LinkOpen", "", "", "", ""], ["Ponte", "", "0-1", "", ""], ["LinkClose", "", "1", "", ""],
            ["Cadenze", "", "1", "", ""]]})
        uscita, messaggi = self.esegui("effetto", nome, "--json")
        self.assertEqual(messaggi, "")
        righe = json.loads(uscita)
        self.assertEqual([riga["Condizione"] for riga in righe], ["LinkOpen", "Ponte", "LinkClose", ""])
        self.assertEqual(righe[3]["Superate"], "252")
        self.assertEqual(righe[3]["Superate %"], "100")
        self.assertNotIn("Superate", righe[0])


if __name__ == "__main__":
    comune.avvia()
