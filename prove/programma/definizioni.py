# definizioni.py - developments and filters said again, plainly and slowly, for small systems.
#
# A condition is its five cells and, beside them, what these mean: a number measured on a column, the values that
# satisfy it, and those that recover it.

from collections import Counter
from itertools import combinations

BLOCCO = 10000


class Condizione:
    def __init__(self, nome, parametri, misura, numeri, punti, recupero=(), gruppo=0):
        """`punti` and `recupero` are collections of values; a range is written as one, a set as a list."""
        self.numeri = set(numeri)  # what the condition keeps as its own list of numbers or positions
        self.celle = [nome, parametri, _cella(punti), _cella(recupero) if gruppo else "", _gruppo(gruppo)]
        self.misura = misura
        self.punti = punti
        self.recupero = recupero if gruppo else ()
        self.gruppo = gruppo


class LinkOpen:
    celle = ["LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn", "", "", ""]
    numeri = frozenset()


class LinkClose:
    def __init__(self, *conteggi):
        self.celle = ["LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", _cella(set(conteggi)), "", ""]
        self.numeri = set(conteggi)


def _cella(valori):
    if isinstance(valori, range):
        return f"{valori.start}-{valori.stop - 1}"
    return "-".join(str(v) for v in sorted(valori))


def _gruppo(gruppo):
    return str(gruppo) if gruppo else " "


def peso(caselle, *resto):
    return Condizione("Peso", "Caselle :\r\n" + _cella(caselle),
                      lambda c: sum(c[k - 1] for k in caselle if k <= len(c)),
                      caselle, *resto)


def pari(*resto):
    return Condizione("Pari-Dispari", "Pari", lambda c: sum(n % 2 == 0 for n in c), range(2, 91, 2), *resto)


def dispari(*resto):
    return Condizione("Pari-Dispari", "Dispari", lambda c: sum(n % 2 for n in c), range(1, 91, 2), *resto)


def consecutivi(*resto):
    return Condizione("Consecutivi", "Consecutivi", lambda c: sum(b - a == 1 for a, b in zip(c, c[1:])),
                      (), *resto)


def punti_colonna(numeri, *resto):
    testi = [f"{n:02}" for n in sorted(numeri)]
    righe = ["-".join(testi[i:i + 4]) for i in range(0, len(testi), 4)]
    return Condizione("Punti Col.", "-\r\n".join(righe), lambda c: len(set(c) & set(numeri)), numeri, *resto)


def resto_di(divisore, *resto):
    return Condizione("Resto", f"Resto a : {divisore}", lambda c: sum(c) % divisore, (), *resto)


def ampiezza(*resto):
    return Condizione("Ampiezza", "Ampiezza", lambda c: c[-1] - c[0], (), *resto)


class Verifica:
    """Judges columns and counts what each condition said of them."""

    def __init__(self, condizioni, quadro=()):
        self.condizioni = condizioni
        self.quadro = {g: limiti for g, limiti in enumerate(quadro, 1) if limiti[2]}
        self.ok = Counter()
        self.ko = Counter()
        self.rec = Counter()

    def passa(self, colonna):
        esiti, recuperi = {}, {}
        for i, condizione in enumerate(self.condizioni):
            if not isinstance(condizione, Condizione):
                continue
            valore = condizione.misura(colonna)
            esiti[i] = valore in condizione.punti
            recuperi[i] = valore in condizione.recupero
            (self.ok if esiti[i] else self.ko)[i] += 1
            self.rec[i] += recuperi[i]
        presenti = Counter(self.condizioni[i].gruppo for i, r in recuperi.items() if r)
        for i, recuperata in recuperi.items():
            minimo, massimo, _ = self.quadro.get(self.condizioni[i].gruppo, (1, 0, 0))
            if recuperata and minimo <= presenti[self.condizioni[i].gruppo] <= massimo:
                esiti[i] = True
        return self._link(esiti)

    def _link(self, esiti):
        """Each link becomes one verdict, inner ones first; a later one reads the list at its shifted place."""
        copia = [(type(c), esiti.get(i, False)) for i, c in enumerate(self.condizioni)]
        while any(tipo is LinkClose for tipo, _ in copia):
            chiude = next(i for i, (tipo, _) in enumerate(copia) if tipo is LinkClose)
            apre = max(i for i in range(chiude) if copia[i][0] is LinkOpen)
            soddisfatte = sum(esito for _, esito in copia[apre:chiude + 1])
            copia[apre:chiude + 1] = [(None, soddisfatte in self.condizioni[chiude].numeri)]
        return all(esito for tipo, esito in copia if tipo is not LinkOpen)


def _tieni(colonne, verifica, limite, lunghezza_blocco):
    """The columns that pass and are not too near to the one kept before; each full block forgets it."""
    tenute, nel_blocco = [], 0
    for i, colonna in enumerate(colonne):
        vicina = limite > 0 and nel_blocco > 0 and len(set(colonna) & set(tenute[-1])) >= limite
        if verifica.passa(colonna) and not vicina:
            tenute.append(colonna)
            nel_blocco += 1
            if nel_blocco == lunghezza_blocco(i):
                nel_blocco = 0
    return tenute


def sviluppa(numeri, classe, verifica, riduzione=0):
    return _tieni(combinations(sorted(numeri), classe), verifica, classe - riduzione, lambda _: BLOCCO)


def filtra(colonne, verifica, riduzione=0):
    """Blocks are those of the source: the last one is shorter."""
    ultimo = len(colonne) - len(colonne) % BLOCCO
    resto = len(colonne) - ultimo
    return _tieni(colonne, verifica, len(colonne[0]) - riduzione, lambda i: BLOCCO if i < ultimo else resto)


def in_byte(colonne):
    return b"".join(bytes(c).ljust(20, b"\0") for c in colonne)


def sistema(numeri, classe, condizioni=(), quadro=(), riduzione=0):
    """The object of a system as the program reads it."""
    return {"classe": classe, "riduzione": riduzione, "numeri": list(numeri),
            "righe": [c.celle for c in condizioni],
            "quadro": [f"{minimo},{massimo},{-1 if attivo else 0}" for minimo, massimo, attivo in quadro]}
