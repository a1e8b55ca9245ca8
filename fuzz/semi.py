#!/usr/bin/env python3
# semi.py - writes the seeds of the fuzzers from the example files of the tests, and some systems.

"""Writes the seeds of the fuzzers from the example files of the tests (prove/dati/buoni/*.hex), from the draws of the
examples (esempi/archivi) and, for whole developments, from systems said here.

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


def bit(valori, byte: int) -> bytes:
    """Flags, the lowest bit first."""
    return sum(1 << v for v in valori).to_bytes(byte, "little")


def condizione(tipo: int, ok=(), rec=(), numeri=(), parametro=0, passo=1, gruppo=0, tra=(0, 0), rec_tra=(1, -1), ok2=(),
               rec2=(), modo=0) -> bytes:
    """A condition, as sviluppo.cpp reads it: lists as flags, ranges as a beginning and a length."""
    parola = [n.to_bytes(2, "little", signed=True) for a, b in (tra, rec_tra) for n in (a, b - a)]
    return (bytes([tipo + 1, modo, gruppo + 1, parametro, passo]) + b"".join(parola) +
            b"".join(bit(v, 2) for v in (ok, rec, ok2, rec2)) + bit(numeri, 12))


def sviluppo(classe: int, numeri, condizioni, limite=0, stop=0, quadro=(), estrazioni=(), lunga=False) -> bytes:
    """A run, as sviluppo.cpp reads it."""
    gruppi = [(attivo, minimo, massimo - minimo) for attivo, minimo, massimo in [*quadro, *[(0, 0, 0)] * 4][:4]]
    return (bytes([classe - 2, lunga, len(numeri) - classe, limite + 1, stop, len(condizioni), len(estrazioni)]) +
            b"".join(bytes(g) for g in gruppi) + b"".join(condizioni) + bytes(n - 1 for n in numeri) +
            b"".join(bytes((7 * n + 13 * k) % 90 for k in range(12)) for n in estrazioni))


def semi_sviluppo() -> None:
    """One run for each kind of condition, and runs in which several things meet."""
    numeri = [3, 4, 11, 14, 19, 22, 23, 31, 45, 58, 62, 79]
    pari = range(2, 91, 2)
    for tipo in range(38):
        sola = condizione(tipo, ok=(0, 1), rec=(2, 3), numeri=[1, 2, *pari], parametro=3, gruppo=1, tra=(10, 60),
                          rec_tra=(61, 90), ok2=(0, 1, 2), rec2=(1, 2, 3))
        scrivi("sviluppo", f"tipo_{tipo:02}", sviluppo(5, numeri, [sola], quadro=[(1, 1, 1)], estrazioni=range(9)))
    peso = condizione(5, numeri=(1, 2, 3), tra=(20, 90), rec_tra=(91, 140), gruppo=1)
    parita = condizione(4, ok=(2, 3), rec=(1,), numeri=pari, gruppo=1)
    sequenza = condizione(17, ok=(1, 2), rec=(0,), numeri=(0,), parametro=2, gruppo=2, ok2=(0, 1), rec2=(0, 1, 2))
    rara = condizione(17, ok=(0, 1), rec=(3,), numeri=(1,), parametro=2, gruppo=1, ok2=(0, 1), rec2=(0, 1, 2, 3))
    apre, chiude = condizione(1), condizione(2, numeri=(1, 2))
    due = [(1, 1, 2), (1, 1, 1)]
    scrivi("sviluppo", "recuperi", sviluppo(6, numeri, [peso, parita, sequenza], quadro=due))
    scrivi("sviluppo", "sequenze", sviluppo(6, numeri, [rara, sequenza, rara], quadro=due))
    scrivi("sviluppo", "link", sviluppo(5, numeri, [apre, peso, apre, parita, sequenza, chiude, parita, chiude, peso],
                                        quadro=due))
    scrivi("sviluppo", "riduzione", sviluppo(6, numeri, [parita], limite=4))
    scrivi("sviluppo", "emulatore", sviluppo(4, numeri, [condizione(26, ok=(), rec=(), parametro=20, modo=2)],
                                             estrazioni=range(20)))
    scrivi("sviluppo", "novanta", sviluppo(2, range(1, 91), [sequenza, parita], quadro=due, limite=1))
    scrivi("sviluppo", "stop", sviluppo(3, range(1, 69), [sequenza, peso], quadro=due, stop=2, lunga=True))
    scrivi("sviluppo", "guasti", sviluppo(5, numeri, [condizione(6, ok=(0,), parametro=20), condizione(15, parametro=30),
                                                      condizione(18, passo=0), condizione(17, parametro=2, passo=0)]))


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
    semi_sviluppo()
    scrivi("testo_estrazioni", "virgole", b"\3Data,N1,N2,N3,N4,N5,N6\r\n1/2/2020,1,2,3,4,5,\"6\"\r\n\r\n,,,,,,\r\n")


if __name__ == "__main__":
    main()
