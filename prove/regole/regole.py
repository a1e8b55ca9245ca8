# regole.py - the house rules, each a function that lists what breaks it.
#
#   regole.py                     all rules over this tree
#   regole.py piani prefissi      these rules
#   regole.py --autoprova [name]  every rule against a small tree that breaks it; names: the rules expected
#
# A rule takes an Albero and gives lines "path[:line]: what is wrong". No line, no fault.

import re
import sys
from pathlib import Path

from albero import DATI, Albero, dichiarazioni, inclusioni
from dipendenze import piani, circoli

CODICE = (".hpp", ".cpp")
SORGENTI = CODICE + (".py", ".sh", ".cmake", "CMakeLists.txt")
RIGHE_MASSIME = 500
BYTE_MASSIMI = 200 * 1024


def facce(albero):
    """What only the faces may use stays in the faces."""
    librerie = (  # library, its headers, its CMake targets, the folder that has it
        ("Qt", re.compile(r"^(?:Q[A-Z]|Qt|q[a-z]+\.h$)"),
         re.compile(r"\bQt[56]?(?:::|\s+(?:REQUIRED|COMPONENTS))"), ("src/qt/", "src/desktop/")),
        ("CLI11", re.compile(r"^CLI/"), re.compile(r"\bCLI11\b"), ("src/cli/",)),
        ("nlohmann/json", re.compile(r"^nlohmann/"), re.compile(r"\bnlohmann_json\b"), ("src/cli/",)),
    )
    for percorso in albero.con(*CODICE, "CMakeLists.txt", sotto=("src/", "include/")):
        for nome, intestazione, bersaglio, casa in librerie:
            if percorso.startswith(casa):
                continue
            for numero, _, incluso in inclusioni(albero, percorso):
                if intestazione.match(incluso):
                    yield f"{percorso}:{numero}: {nome} serve solo in {' e '.join(casa)}"
            if percorso.endswith("CMakeLists.txt") and bersaglio.search(albero.testo(percorso)):
                yield f"{percorso}: {nome} serve solo in {' e '.join(casa)}"


def prima_riga(albero):
    """A file says in its first line what it holds: "// Name.hpp - what it holds."."""
    for percorso in albero.con(*CODICE, ".py", ".sh"):
        righe = albero.righe(percorso)
        numero = 2 if righe and righe[0].startswith("#!") else 1
        riga = righe[numero - 1] if len(righe) >= numero else ""
        segno = "//" if percorso.endswith(CODICE) else "#"
        inizio = f"{segno} {Path(percorso).name} - "
        if not riga.startswith(inizio) or not re.search(r"\w.*[.?:]$", riga[len(inizio):]):
            yield f"{percorso}:{numero}: la prima riga deve essere «{inizio}che cosa contiene.»"


def pragma_once(albero):
    """Every header is guarded by #pragma once."""
    for percorso in albero.con(".hpp"):
        if "#pragma once" not in albero.righe(percorso):
            yield f"{percorso}: manca #pragma once"


def disattivate(albero):
    """No test is switched off without a reason in a comment on the line before."""
    casi = [(p, "//", r"\bDISABLED_|\bGTEST_SKIP\b") for p in albero.con(*CODICE)]
    casi += [(p, "#", r"\bDISABLED\b") for p in albero.con("CMakeLists.txt")]
    for percorso, segno, modello in casi:
        prima = ""
        for numero, riga in enumerate(albero.righe(percorso), 1):
            motivata = prima.startswith(segno) and re.search(r"\w", prima)
            if re.search(modello, riga.split(segno)[0]) and not motivata:
                yield f"{percorso}:{numero}: prova disattivata senza un motivo nella riga sopra"
            prima = riga.strip()


def lunghezza(albero):
    """A file over 500 lines is two."""
    for percorso in albero.con(*SORGENTI):
        righe = len(albero.righe(percorso))
        if righe > RIGHE_MASSIME:
            yield f"{percorso}: {righe} righe, il massimo è {RIGHE_MASSIME}"


_ARITMETICO = (r"(?:unsigned|int|short|long|float|double|(?:unsigned|long) (?:int|long|short|double)"
               r"|(?:std::)?u?int(?:8|16|32|64)_t|(?:std::)?size_t|std::ptrdiff_t|std::stream(?:size|off))")
_PREFISSI = (
    ("s", re.compile(r"std::string(?:_view)?")),
    ("b", re.compile(r"bool")),
    ("n", re.compile(_ARITMETICO)),
    ("a", re.compile(r"(?:std::(?:span|vector|array)|Tabella)<.*>")),
)
# A table by its type, one thing by its meaning: the line of an emulated draw.
_OGGETTI = {"RigaEmulatore"}
_PARAMETRO = re.compile(r"(?:\[\[\w+\]\] )?(?:const )?"
                        r"(?P<tipo>[\w:]+(?: (?:int|long|short|double)\b)?(?:<.*>)?)"
                        r"(?: const)? ?(?:&&|&)? ?(?P<nome>\b[A-Za-z]\w+)$")


def _parametri(testo):
    """(line, parameter) for each part of each pair of round brackets, inner pairs before the outer."""
    pila = []
    for posto, carattere in enumerate(testo):
        if carattere in "(<{[":
            pila.append((carattere, posto + 1))
        elif carattere == ">":
            if pila and pila[-1][0] == "<" and testo[posto - 1] != "-":
                pila.pop()
        elif carattere in ",)}]":
            while carattere != "," and pila and pila[-1][0] == "<":
                pila.pop()  # it was a comparison
            if not pila or (carattere == "," and pila[-1][0] != "("):
                continue
            aperta, inizio = pila.pop()
            parametro = " ".join(testo[inizio:posto].split("=")[0].split())
            if aperta == "(" and parametro:
                yield testo.count("\n", 0, inizio) + 1, parametro
            if carattere == ",":
                pila.append((aperta, posto + 1))


def prefissi(albero):
    """Arguments of functions in headers: s text, b truth value, n number, a array; single letters are free."""
    intestazioni = [p for p in albero.con(".hpp") if not p.startswith("src/qt/")]
    tabelle = {nome for p in intestazioni
               for nome in re.findall(r"\busing (\w+) = Tabella<", albero.testo(p))}
    for percorso in intestazioni:
        for numero, parametro in _parametri(dichiarazioni(albero.testo(percorso))):
            parte = _PARAMETRO.match(parametro)
            if not parte:
                continue
            tipo, nome = parte["tipo"], parte["nome"]
            voluto = next((p for p, modello in _PREFISSI if modello.fullmatch(tipo)),
                          "a" if tipo in tabelle - _OGGETTI else None)
            if voluto and not re.match(voluto + r"[A-Z0-9]", nome):
                yield f"{percorso}:{numero}: l'argomento «{nome}» ({tipo}) deve cominciare con «{voluto}»"


def elenchi(albero):
    """Every source of the library, the program and the tests is named in the nearest CMakeLists.txt."""
    for percorso in albero.con(".cpp", sotto=("src/", "prove/")):
        elenco = albero.elenco_vicino(percorso)
        relativo = percorso[len(elenco) - len("CMakeLists.txt"):] if elenco else percorso
        righe = (riga.split("#")[0] for riga in albero.righe(elenco)) if elenco else ()
        if not any(re.search(rf"(?<![\w./-]){re.escape(relativo)}(?![\w.-])", riga) for riga in righe):
            yield f"{percorso}: non è nominato in {elenco or 'nessun CMakeLists.txt'}"


def promesse(albero):
    """Every installed header stands in the file set of the library."""
    nominati = set(re.findall(r"include/(ordavel/[\w/]+\.hpp)", albero.testo("src/CMakeLists.txt")))
    for percorso in albero.con(".hpp", sotto=("include/",)):
        if percorso[len("include/"):] not in nominati:
            yield f"{percorso}: manca nel FILE_SET di src/CMakeLists.txt"


_GENERATI = re.compile(
    r"(?:^|/)(?:build|__pycache__|CMakeFiles|\w+_autogen)/"
    r"|(?:^|/)(?:CMakeCache\.txt|compile_commands\.json|core)$"
    r"|\.(?:o|a|so|obj|dll|exe|pyc|log|orig|rej|col|sic)$|(?:^|/)(?:moc|ui|qrc)_[^/]*$"
    r"|(?:^|/)(?:crash|leak|oom|timeout)-[0-9a-f]{40}$")


def pesi(albero):
    """Nothing generated and nothing large is kept; test data may bear any name."""
    for percorso in albero.percorsi:
        if _GENERATI.search(percorso) and not percorso.startswith(DATI):
            yield f"{percorso}: è un file generato"
        if albero.byte(percorso) > BYTE_MASSIMI:
            yield f"{percorso}: {albero.byte(percorso)} byte, il massimo è {BYTE_MASSIMI}"


# The brackets keep the words out of this file.
VIETATE = (
    (re.compile(r"\bT[O]DO\b"), "un lavoro lasciato a metà"),
    (re.compile(r"\bF[I]XME\b"), "un difetto noto e lasciato"),
    (re.compile(r"\bX[X]X\b"), "un dubbio lasciato nel testo"),
    (re.compile(r"\bN[O]LINT(?!\w*\([\w*-])"), "un controllo spento senza dire quale"),
)


def vietate(albero):
    """Words that must not stand in the tree."""
    for percorso in albero.con(""):
        for numero, riga in enumerate(albero.righe(percorso), 1):
            for modello, perche in VIETATE:
                if modello.search(riga):
                    yield f"{percorso}:{numero}: {perche}: {riga.strip()[:80]}"


REGOLE = {regola.__name__: regola for regola in (
    piani, circoli, facce, prima_riga, pragma_once, disattivate, lunghezza, prefissi, elenchi, promesse, pesi,
    vietate)}


def controlla(nomi):
    """Runs rules over this tree and prints what they find; 0 when they find nothing."""
    albero = Albero(Path(__file__).resolve().parents[2])
    colpe = [(nome, riga) for nome in nomi for riga in REGOLE[nome](albero)]
    for nome, riga in colpe:
        print(f"{riga} [{nome}]")
    print(f"{len(nomi)} regole, {len(albero.percorsi)} file, {len(colpe)} violazioni")
    return 1 if colpe else 0


def principale(argomenti):
    if argomenti[:1] == ["--autoprova"]:
        from autoprova import autoprova

        return autoprova(REGOLE, argomenti[1:])
    ignote = [nome for nome in argomenti if nome not in REGOLE]
    if ignote:
        print(f"Regole sconosciute: {' '.join(ignote)}. Ci sono: {' '.join(REGOLE)}", file=sys.stderr)
        return 2
    return controlla(argomenti or list(REGOLE))


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
