# autoprova.py - shows that each house rule catches what it is there for.
#
# Every sample is a few files laid over a small sound tree. The sound tree must break no rule, and a sample
# must break the rule that it is named after, with the words that it asks for.

import tempfile
from pathlib import Path

from albero import Albero

SANO = {
    "src/CMakeLists.txt": "FILES\n  ${PROJECT_SOURCE_DIR}/include/ordavel/errore.hpp\n",
    "include/ordavel/errore.hpp":
        '// errore.hpp - failures.\n\n#pragma once\n\n#include "ordavel/esporta.hpp"\n',
    "src/core/CMakeLists.txt": "target_sources(ordavel_nucleo PRIVATE\n  ModA.cpp)\n",
    "src/core/ModA.hpp": """// ModA.hpp - does a thing hold?
//
// A word of prose: f(int sbagliato) and "testo" stay out of it.

#pragma once

#include "ordavel/errore.hpp"

#include <span>

namespace ordavel {
using Flag = Tabella<int, 1, 90>;
template <typename T, int Basso = (1 < 2)> class Prova {
public:
    explicit Prova(std::span<const int> aDati, T altro) : m_aDati(aDati) { Usa(int(altro), '"'); }
    bool operator()(std::size_t nIndice) const
    {
        for (std::size_t i = 0; i < nIndice; ++i) { Usa(int(i), bool(i)); }
        return true;
    }
    std::ostream& operator<<(const std::string& sTesto);
private:
    std::array<int, 2> m_aDati{1'000, 2};
};
void F(const std::function<void(std::string_view sVoce, bool bFine)>& fatto, std::int32_t n = 3,
       const Flag& aFlag = {});
void G(std::vector<std::pair<int, bool>>& aCoppie, const char* testo, std::string_view sVuoto = "a, int b");
} // namespace ordavel
""",
    "src/core/ModA.cpp": '// ModA.cpp - a thing.\n\n#include "core/ModA.hpp"\n',
    "src/piattaforma/P.hpp": '// P.hpp - the port.\n\n#pragma once\n\n#include "core/ModA.hpp"\n',
    "src/cli/Comandi.hpp": '// Comandi.hpp - commands.\n\n#pragma once\n\n#include <CLI/CLI.hpp>\n',
    "prove/core/CMakeLists.txt": "ordavel_prova(core\n  ModA_prova.cpp)\n",
    "prove/core/ModA_prova.cpp": "// ModA_prova.cpp - tests.\n\n// Needs a slow disk.\nGTEST_SKIP();\n",
    "prove/dati/rotti/tronco.col": "\0" * 100,
    "attrezzi/pulisci.sh": "#!/usr/bin/env bash\n# pulisci.sh - clears up.\n",
}


def intestazione(corpo, nome="ModB.hpp"):
    return f"// {nome} - more.\n\n#pragma once\n\n{corpo}\n"


# Taken apart, so that the words do not stand in this file.
FARE, AGGIUSTARE, DUBBIO, SPENTO = "TO" + "DO", "FIX" + "ME", "X" + "XX", "NO" + "LINT"

MODB = "src/core/ModB.hpp"

CAMPIONI = (  # rule, files, words of the message
    ("piani", {MODB: intestazione('#include "cli/Comandi.hpp"')}, "core (0) include cli (6)"),
    ("piani", {MODB: intestazione('#include "../cli/Comandi.hpp"')}, "non appartiene"),
    ("piani", {MODB: intestazione('#include <ordavel/Ordavel.hpp>')}, "include controllo (5)"),
    ("piani", {MODB: intestazione('#include "ordavel/Altro.hpp"')}, "non appartiene"),
    ("piani", {"include/ordavel/Altro.hpp": intestazione("", "Altro.hpp")}, "non appartiene"),
    ("piani", {"include/ordavel/records.hpp": intestazione('#include "piattaforma/P.hpp"', "records.hpp")},
     "sta più in alto"),
    ("piani", {"src/altrove/ModB.hpp": intestazione("")}, "non appartiene"),
    ("piani", {"src/calcoli/ModC.hpp": intestazione(""),
               "src/piattaforma/ModB.hpp": intestazione('#include "calcoli/ModC.hpp"')}, "non può includere"),
    ("circoli", {MODB: intestazione('#include "core/ModC.hpp"'),
                 "src/core/ModC.hpp": intestazione('#include "ModB.hpp"')}, "circolo fra file"),
    ("circoli", {"src/calcoli/ModB.hpp": intestazione('#include "condizioni/ModC.hpp"'),
                 "src/condizioni/ModC.hpp": intestazione(""),
                 "src/condizioni/ModD.hpp": intestazione('#include "calcoli/ModE.hpp"'),
                 "src/calcoli/ModE.hpp": intestazione("")}, "circolo fra cartelle"),
    ("facce", {MODB: intestazione("#include <QString>")}, "Qt serve solo"),
    ("facce", {"src/cli/ModB.hpp": intestazione("#include <QtCore/qglobal.h>")}, "Qt serve solo"),
    ("facce", {"include/ordavel/B.hpp": intestazione("#include <nlohmann/json.hpp>")}, "nlohmann/json serve"),
    ("facce", {"src/controllo/ModB.hpp": intestazione("# include <CLI/App.hpp>")}, "CLI11 serve solo"),
    ("facce", {"src/core/CMakeLists.txt": "find_package(Qt6 REQUIRED)\nModA.cpp\n"}, "Qt serve solo"),
    ("prima_riga", {"src/core/ModB.cpp": "// Modb.cpp - more.\n"}, "ModB.cpp:1"),
    ("prima_riga", {"src/core/ModB.hpp": "#pragma once\n"}, "ModB.hpp:1"),
    ("prima_riga", {"src/core/ModB.hpp": "// ModB.hpp - \n"}, "ModB.hpp:1"),
    ("prima_riga", {"src/core/ModB.hpp": ""}, "ModB.hpp:1"),
    ("prima_riga", {"prove/x.py": "import sys\n"}, "x.py:1"),
    ("prima_riga", {"attrezzi/x.sh": "#!/bin/sh\nset -e\n"}, "x.sh:2"),
    ("pragma_once", {"src/core/ModB.hpp": "// ModB.hpp - more.\n// #pragma once\n"}, "manca #pragma once"),
    ("disattivate", {"prove/core/B_prova.cpp": "TEST(A, DISABLED_B)\n"}, "B_prova.cpp:1"),
    ("disattivate", {"prove/core/B_prova.cpp": "//\n    GTEST_SKIP();\n"}, "B_prova.cpp:2"),
    ("disattivate",
     {"prove/core/CMakeLists.txt": "ModA_prova.cpp\nset_tests_properties(a PROPERTIES DISABLED 1)\n"},
     "CMakeLists.txt:2"),
    ("lunghezza", {"src/core/ModB.cpp": "\n" * 501}, "501 righe"),
    ("prefissi", {MODB: intestazione("void F(const std::string& testo);")}, "«s»"),
    ("prefissi", {MODB: intestazione("void F(int nUno,\n std::string_view nome = {});")}, "ModB.hpp:5"),
    ("prefissi", {MODB: intestazione("struct A { bool F(bool forza) const { return 1; } };")}, "«b»"),
    ("prefissi", {MODB: intestazione("class A { explicit A(std::int64_t& quanti); };")}, "«n»"),
    ("prefissi", {MODB: intestazione("void F(unsigned long quanti);")}, "«n»"),
    ("prefissi", {MODB: intestazione("template <class T> T F(std::span<const T> dati) { return 1; }")},
     "«a»"),
    ("prefissi", {MODB: intestazione("void F(std::vector<std::pair<int, bool>>&& dati);")}, "«a»"),
    ("prefissi", {MODB: intestazione("void F(const Flag& flag);")}, "«a»"),
    ("prefissi", {MODB: intestazione("using V = std::function<void(bool fatto)>;")}, "«b»"),
    ("elenchi", {"src/core/ModB.cpp": "// ModB.cpp - more.\n"}, "src/core/CMakeLists.txt"),
    ("elenchi", {"src/core/odA.cpp": "// odA.cpp - more.\n"}, "src/core/odA.cpp"),
    ("elenchi", {"prove/core/CMakeLists.txt": "# ModA_prova.cpp\n"}, "prove/core/ModA_prova.cpp"),
    ("elenchi", {"prove/altro/B_prova.cpp": "// B_prova.cpp - more.\n"}, "nessun CMakeLists.txt"),
    ("promesse", {"include/ordavel/B.hpp": intestazione("")}, "FILE_SET"),
    ("pesi", {"src/core/ModA.o": ""}, "file generato"),
    ("pesi", {"prova.col": ""}, "file generato"),
    ("pesi", {"prove/dati/grande.bin": "x" * (200 * 1024 + 1)}, "204801 byte"),
    ("vietate", {"docs/a.md": f"Poi {FARE}: il resto.\n"}, "a metà"),
    ("vietate", {"src/core/ModB.cpp": f"int a; // {AGGIUSTARE} later\n"}, "difetto"),
    ("vietate", {"prova.sh": f"# {DUBBIO}\n"}, "dubbio"),
    ("vietate", {"src/core/ModB.cpp": f"int a; // {SPENTO}\n"}, "senza dire quale"),
    ("vietate", {"src/core/ModB.cpp": f"// {SPENTO}NEXTLINE: perché\n"}, "senza dire quale"),
)


def _colpe(regola, aggiunti):
    with tempfile.TemporaryDirectory(prefix="ordavel-regole-") as cima:
        for percorso, testo in {**SANO, **aggiunti}.items():
            posto = Path(cima, percorso)
            posto.parent.mkdir(parents=True, exist_ok=True)
            posto.write_bytes(testo.encode())
        return list(regola(Albero(cima)))


def autoprova(regole, attese):
    """Takes the rules by name, and the names that the caller runs; 0 when every rule does its work."""
    guasti = [f"{nome}: accusa l'albero sano: {riga}"
              for nome, regola in regole.items() for riga in _colpe(regola, {})]
    for nome, aggiunti, parole in CAMPIONI:
        colpe = _colpe(regole[nome], aggiunti)
        if not any(parole in riga for riga in colpe):
            guasti.append(f"{nome}: non trova «{parole}» in {list(aggiunti)}: {colpe}")
    guasti += [f"{nome}: nessun campione la mette alla prova"
               for nome in set(regole) - {campione[0] for campione in CAMPIONI}]
    if attese:
        guasti += [f"{nome}: manca nell'elenco di prove/regole/CMakeLists.txt"
                   for nome in set(regole) - set(attese)]
    print("\n".join(guasti + [f"{len(regole)} regole, {len(CAMPIONI)} campioni, {len(guasti)} guasti"]))
    return 1 if guasti else 0
