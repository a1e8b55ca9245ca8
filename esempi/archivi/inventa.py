# inventa.py - invented draws of each game, the same ones every time.

import random
from pathlib import Path

RUOTE = ["Bari", "Cagliari", "Firenze", "Genova", "Milano", "Napoli", "Palermo", "Roma", "Torino", "Venezia",
         "Nazionale"]
QUANTE = 120
GIOCHI = {"lotto": 55, "10elotto": 20, "10elotto5m": 20, "superenalotto": 6, "winforlife": 10}


def nomi(gioco, numeri):
    if gioco == "lotto":
        return [f"{ruota}{i}" for ruota in RUOTE for i in range(1, 6)]
    return [f"N{i}" for i in range(1, numeri + 1)]


def estrazione(sorte, gioco, numeri):
    gruppi = len(RUOTE) if gioco == "lotto" else 1
    return [n for _ in range(gruppi) for n in sorte.sample(range(1, 91), numeri // gruppi)]


def main():
    for gioco, numeri in GIOCHI.items():
        sorte = random.Random(gioco)
        linee = [";".join(["Data", *nomi(gioco, numeri)])]
        for _ in range(QUANTE):
            linee.append(";".join(["", *map(str, estrazione(sorte, gioco, numeri))]))
        (Path(__file__).parent / f"{gioco}.csv").write_text("\n".join(linee) + "\n")


if __name__ == "__main__":
    main()
