# albero.py - the tree as the rules see it: paths, texts, and C++ without comments.

import os
import re
import subprocess
from pathlib import Path

# Files of others, kept byte for byte: no rule about wording or form speaks of them.
DATI = ("prove/dati/", "fuzz/semi/")


class Albero:
    """A tree of files. Paths are relative to its top, with "/" between the folders."""

    def __init__(self, cima):
        self.cima = Path(cima)
        self.percorsi = sorted(p for p in self._elenca() if (self.cima / p).is_file())
        self._testi = {}

    def _elenca(self):
        """What is tracked or could be; all but build/ when the tree is not under version control."""
        if not (self.cima / ".git").exists():
            tutti = (p.relative_to(self.cima) for p in self.cima.rglob("*"))
            return [p.as_posix() for p in tutti if p.parts[0] != "build" and "__pycache__" not in p.parts]
        # The checkout may belong to another user, as it does inside a container.
        comando = ["git", "-c", f"safe.directory={self.cima}", "-C", str(self.cima), "ls-files", "-z",
                   "--cached", "--others", "--exclude-standard", "--deduplicate"]
        uscita = subprocess.run(comando, check=True, stdout=subprocess.PIPE).stdout
        return [os.fsdecode(nome) for nome in uscita.split(b"\0") if nome]

    def con(self, *finali, sotto=("",)):
        """Paths with one of these endings, below one of these folders, data left out."""
        return [p for p in self.percorsi
                if p.endswith(finali) and p.startswith(tuple(sotto)) and not p.startswith(DATI)]

    def testo(self, percorso):
        """The text of a file; empty for a file that is not text or not there."""
        if percorso not in self._testi:
            try:
                self._testi[percorso] = (self.cima / percorso).read_bytes().decode("utf-8")
            except (OSError, UnicodeDecodeError):
                self._testi[percorso] = ""
        return self._testi[percorso]

    def righe(self, percorso):
        return self.testo(percorso).splitlines()

    def byte(self, percorso):
        return (self.cima / percorso).stat().st_size

    def elenco_vicino(self, percorso):
        """The nearest CMakeLists.txt at or above the folder of a file; nothing when there is none."""
        for cartella in Path(percorso).parents:
            elenco = (cartella / "CMakeLists.txt").as_posix()
            if elenco in self.percorsi:
                return elenco
        return None


INCLUSIONE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]')


def inclusioni(albero, percorso):
    """(line number, quoted?, name) of every #include of a file."""
    trovate = []
    for numero, riga in enumerate(albero.righe(percorso), 1):
        parte = INCLUSIONE.match(riga)
        if parte:
            trovate.append((numero, parte[1] == '"', parte[2]))
    return trovate


_DA_TOGLIERE = re.compile(
    r'R"(?P<sigla>[^()\s\\"]{0,16})\(.*?\)(?P=sigla)"'  # raw strings
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])*'"  # characters, but not the ' of 1'000
    r"|//[^\n]*"
    r"|/\*.*?\*/"
    r"|^[ \t]*#(?:[^\n\\]|\\.|\\\n)*",
    re.DOTALL | re.MULTILINE,
)


def senza_commenti(testo):
    """C++ without comments, literals and preprocessor lines; line breaks stay where they were."""
    return _DA_TOGLIERE.sub(lambda parte: "\n" * parte[0].count("\n") or " ", testo)


_MODELLO = re.compile(r"\btemplate\s*<")
_TRASPARENTE = re.compile(
    r"^(?:public:|private:|protected:|\s|inline\b|export\b)*"
    r"(?:typedef\s+)?(?:namespace|class|struct|union|enum|extern)\b")


def _senza_modelli(testa):
    """The head of a declaration without its template<...> parts."""
    while parte := _MODELLO.search(testa):
        fine, aperte = parte.end(), 1
        while fine < len(testa) and aperte:
            aperte += {"<": 1, ">": -1}.get(testa[fine], 0)
            fine += 1
        testa = testa[: parte.start()] + testa[fine:]
    return testa


def dichiarazioni(testo):
    """What a header declares: the text without comments and without the bodies of functions."""
    pulito = senza_commenti(testo)
    uscita = []
    testa = []  # since the last ; { or }
    corpo = 0  # braces open inside a body
    for carattere in pulito:
        if corpo:
            corpo += {"{": 1, "}": -1}.get(carattere, 0)
            uscita.append("\n" if carattere == "\n" else "")
            continue
        if carattere == "{" and not _TRASPARENTE.match(_senza_modelli("".join(testa)).lstrip()):
            corpo = 1
            uscita.append(";")
            testa = []
            continue
        uscita.append(carattere)
        testa = [] if carattere in ";{}" else testa + [carattere]
    return "".join(uscita)
