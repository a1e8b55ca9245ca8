# dipendenze.py - who may include whom: floors, and no circles between folders or between files.

from pathlib import PurePosixPath

from albero import inclusioni

PIANI = {
    "core": 0,
    "calcoli": 1, "condizioni": 1, "persistenza": 1,
    "motore": 2, "riduzione": 2, "emulatore": 2, "esterni": 2,
    "piattaforma": 3,
    "editor": 4, "analisi": 4,
    "controllo": 5,
    "cli": 6, "qt": 6,
    "desktop": 7,
}

# The port knows nothing of what it carries.
SOLO = {"piattaforma": {"core", "piattaforma"}}

# The installed headers, each with the folder that it belongs to.
CASA = {
    "errore.hpp": "core",
    "esporta.hpp": "core",  # generated
    "records.hpp": "core",
    "RigheEmulatore.hpp": "core",
    "StatoSviluppo.hpp": "core",
    "GrigliaCondizioni.hpp": "condizioni",
    "ContaSistema.hpp": "motore",
    "ArchivioProprieta.hpp": "piattaforma",
    "Controlli.hpp": "piattaforma",
    "Dialogo.hpp": "piattaforma",
    "Piattaforma.hpp": "piattaforma",
    "VistaCondizioni.hpp": "piattaforma",
    "CalcoliColonna.hpp": "controllo",
    "ContenutoSistema.hpp": "controllo",
    "ControlliOrdavel.hpp": "controllo",
    "EventiOrdavel.hpp": "controllo",
    "Ordavel.hpp": "controllo",
}


def _cartella(percorso):
    """The folder of the design that a file belongs to; nothing when the tables do not know it."""
    parti = PurePosixPath(percorso).parts
    if parti[0] == "include_qt":
        return "qt"
    if parti[0] == "include":
        return CASA.get("/".join(parti[2:]))
    return parti[1] if len(parti) > 2 and parti[1] in PIANI else None


def _bersaglio(albero, da, nome, virgolette):
    """The path that an #include means; nothing for a header that is not the project's."""
    if nome.startswith("ordavel/"):
        qt = "include_qt/" + nome
        return qt if qt in albero.percorsi or nome == "ordavel/esporta_qt.hpp" else "include/" + nome
    candidati = ("src/" + nome, (PurePosixPath(da).parent / nome).as_posix())
    return next((c for c in candidati if c in albero.percorsi), "src/" + nome if virgolette else None)


def _archi(albero):
    """(from, line, to) for each inclusion of one file of the project by another."""
    for da in albero.con(".hpp", ".cpp", sotto=("src/", "include/")):
        for numero, virgolette, nome in inclusioni(albero, da):
            a = _bersaglio(albero, da, nome, virgolette)
            if a:
                yield da, numero, a


def piani(albero):
    """A floor includes what stands below it, never above."""
    for percorso in albero.con(".hpp", ".cpp", sotto=("src/", "include/")):
        if _cartella(percorso) is None:
            yield f"{percorso}: non appartiene a nessun piano (tabelle in prove/regole/dipendenze.py)"
    for da, numero, a in _archi(albero):
        sopra, sotto = _cartella(da), _cartella(a)
        if sotto is None:
            yield f"{da}:{numero}: {a} non appartiene a nessun piano"
        elif sopra and PIANI[sotto] > PIANI[sopra]:
            yield (f"{da}:{numero}: {sopra} ({PIANI[sopra]}) include {sotto} ({PIANI[sotto]}), "
                   "che sta più in alto")
        elif sopra and sotto not in SOLO.get(sopra, PIANI):
            yield f"{da}:{numero}: {sopra} non può includere {sotto}"


def _circolo(grafo):
    """One circle of a graph as a list of nodes, the first again at the end; empty when there is none."""
    finiti, via = set(), []

    def visita(nodo):
        if nodo in via:
            return via[via.index(nodo):] + [nodo]
        if nodo in finiti:
            return []
        via.append(nodo)
        for prossimo in sorted(grafo.get(nodo, ())):
            if giro := visita(prossimo):
                return giro
        via.pop()
        finiti.add(nodo)
        return []

    return next((giro for nodo in sorted(grafo) if (giro := visita(nodo))), [])


def circoli(albero):
    """No circles between files, and none between folders."""
    file, cartelle = {}, {}
    for da, _, a in _archi(albero):
        file.setdefault(da, set()).add(a)
        if _cartella(da) and _cartella(a) and _cartella(da) != _cartella(a):
            cartelle.setdefault(_cartella(da), set()).add(_cartella(a))
    for cosa, grafo in (("file", file), ("cartelle", cartelle)):
        if giro := _circolo(grafo):
            yield f"{giro[0]}: circolo fra {cosa}: {' -> '.join(giro)}"
