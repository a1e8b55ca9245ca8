#!/usr/bin/env python3
# semi.py - writes the seeds of the fuzzers from the example files of the tests.

"""Writes the seeds of the fuzzers from the example files of the tests (prove/dati/buoni/*.hex) and from the draws
of the examples (esempi/archivi).

Run it again after an example has changed:  python3 fuzz/semi.py
"""
import pathlib

ARCHIVI = ["lotto", "10elotto", "10elotto5m", "superenalotto", "winforlife"]

QUI = pathlib.Path(__file__).resolve().parent
BUONI = QUI.parent / "prove" / "dati" / "buoni"


def da_esadecimale(testo: str) -> bytes:
    """Two-digit hex bytes; "00*72" is a byte repeated 72 times; "#" begins a comment."""
    byte = bytearray()
    for riga in testo.splitlines():
        for parola in riga.split("#")[0].split():
            valore, _, volte = parola.partition("*")
            byte += bytes.fromhex(valore) * int(volte or 1)
    return bytes(byte)


def scrivi(fuzzer: str, nome: str, byte: bytes) -> None:
    cartella = QUI / "semi" / fuzzer
    cartella.mkdir(parents=True, exist_ok=True)
    (cartella / nome).write_bytes(byte)


def main() -> None:
    sistema = da_esadecimale((BUONI / "sistema.hex").read_text())
    colonne = da_esadecimale((BUONI / "colonne.hex").read_text())
    ponte = da_esadecimale((BUONI / "condizioni.hex").read_text())
    parte = sistema[: sistema.index(b"COLONNE")]
    scrivi("file_sistema", "senza_condizioni", parte[:317])
    scrivi("file_sistema", "una_condizione", parte)
    scrivi("file_sistema", "due_condizioni", parte + parte[317:])
    scrivi("file_sistema", "con_colonne", sistema)
    scrivi("file_colonne", "con_colonne", sistema)
    scrivi("file_colonne", "senza_colonne", parte)
    scrivi("file_colonne", "sole_colonne", b"COLONNE" + colonne)
    scrivi("file_condizioni", "una_riga", ponte)
    scrivi("file_condizioni", "due_righe", ponte + ponte)
    scrivi("file_condizioni", "riga_vuota", ponte + b"\0" + ponte)
    scrivi("file_condizioni", "chiave_vuota", b"[R]1-2[R]\0" + ponte)
    scrivi("file_condizioni", "troppe_celle", b"A[R]" * 7 + b"\0")
    scrivi("file_condizioni", "pagina", bytes(range(1, 256)) + b"[R]\0")
    for gioco, nome in enumerate(ARCHIVI):
        # Both begin with the game's number; the archive goes on with how many draws are wanted, and the wheel.
        archivio = (QUI.parent / "esempi" / "archivi" / f"{nome}.bd").read_bytes()
        testo = (QUI.parent / "esempi" / "archivi" / f"{nome}.csv").read_bytes()
        scrivi("archivio", nome, bytes([gioco, 3, 11]) + archivio[:300])
        scrivi("testo_estrazioni", nome, bytes([gioco]) + b"\n".join(testo.split(b"\n")[:4]))
    scrivi("testo_estrazioni", "virgole", b"\3Data,N1,N2,N3,N4,N5,N6\r\n1/2/2020,1,2,3,4,5,\"6\"\r\n\r\n,,,,,,\r\n")


if __name__ == "__main__":
    main()
