// OrdavelAndataRitorno_prova.cpp - random systems, saved by one component and opened by another.

#include "ordavel/Ordavel.hpp"

#include "comune/GeneratoriSistema.hpp"
#include "controllo/SistemaProva.hpp"
#include "editor/F_ScegliRuota.hpp"

#include <rapidcheck/gtest.h>

namespace ordavel {
namespace {

using prove::LeggiFile;
using prove::SistemaProva;
using prove::Tra;

/// Takes out of a condition what its record cannot carry: the recovery of a range without a group, and the zeros
/// of a triple.
Condizione SenzaPerdite(Condizione celle)
{
    const ePunti punti = TrovaChiave(celle.sCondizione)->punti;
    if (punti == ePunti::intervallo && celle.sQuadro == " ") {
        celle.sRecupero.clear();
    }
    for (std::string* sTerna : {&celle.sPunti, &celle.sRecupero}) {
        const auto aParti = Dividi(*sTerna, "-");
        if (punti == ePunti::terna && (aParti.size() != 3 || sTerna->find('0') != std::string::npos)) {
            *sTerna = "2-1-1";
        }
    }
    return celle;
}

/// States a small random system: at most 252 columns.
void PoniSistemaCasuale(Ordavel& sistema)
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 5));
    sistema.PoniClasse(nClasse);
    sistema.Controlli().CmbRid.Indice.Poni(Tra(0, 1) * Tra(0, 5));
    const auto nNumeri = static_cast<std::size_t>(Tra(nClasse, 10));
    for (const auto nNumero : *rc::gen::unique<std::vector<std::int16_t>>(
             nNumeri, rc::gen::inRange<std::int16_t>(1, kNumeroMassimo + 1))) {
        sistema.SelezionaNumero(nNumero, true);
    }
    std::int32_t nRiga = 0;
    for (const Condizione& celle : *prove::GenCondizioni(nClasse, 3)) {
        sistema.GetGridCond().Riga(++nRiga) = SenzaPerdite(celle);
    }
    sistema.GetLbQuadroRec().Voci.Poni(*prove::GenQuadro());
}

/// Saves a system and opens it elsewhere.
void SalvaEApri(SistemaProva& origine, SistemaProva& copia)
{
    RC_ASSERT(origine.Salva(origine.cartella / "s.sic"));
    RC_ASSERT(copia.Apri(origine.cartella / "s.sic"));
}

/// Develops and gives the boxes but the last, which tells the time, and the first of an emulator, which has no
/// archive here.
std::vector<Messaggio> Guasti(SistemaProva& prova)
{
    const bool bEmulatore = prova.sistema.IsCondizionePresente("Emulatore");
    if (bEmulatore) {
        prova.piattaforma.Gioca<F_ScegliRuota>([](F_ScegliRuota&) {});
    }
    RC_ASSERT(prova.sistema.GestSviluppo());
    auto aMessaggi = prova.piattaforma.Messaggi();
    RC_ASSERT(aMessaggi.back() == prove::FineSviluppo());
    aMessaggi.pop_back();
    RC_ASSERT(std::erase(aMessaggi, prove::EmulatoreNonCreato()) == (bEmulatore ? 1U : 0U));
    return aMessaggi;
}

RC_GTEST_PROP(OrdavelAndataRitorno, UnSistemaRiapertoSiSviluppaUguale, ())
{
    SistemaProva origine;
    PoniSistemaCasuale(origine.sistema);
    SistemaProva copia;
    SalvaEApri(origine, copia);
    RC_ASSERT(Guasti(origine) == Guasti(copia));
    RC_ASSERT(origine.ByteColonne() == copia.ByteColonne());
    RC_ASSERT(origine.Conteggi() == copia.Conteggi());
    RC_ASSERT(origine.sistema.UltimoSviluppo().aCondizioni == copia.sistema.UltimoSviluppo().aCondizioni);
}

RC_GTEST_PROP(OrdavelAndataRitorno, UnSistemaRiapertoHaLeStesseColonne, ())
{
    SistemaProva origine;
    PoniSistemaCasuale(origine.sistema);
    RC_PRE(Guasti(origine).empty());
    RC_CLASSIFY(!origine.ByteColonne().empty());
    SistemaProva copia;
    SalvaEApri(origine, copia);
    RC_ASSERT(origine.ByteColonne() == copia.ByteColonne());
}

RC_GTEST_PROP(OrdavelAndataRitorno, SalvatoRiapertoERisalvatoIlFileEUguale, ())
{
    SistemaProva origine;
    PoniSistemaCasuale(origine.sistema);
    SistemaProva copia;
    SalvaEApri(origine, copia);
    RC_ASSERT(copia.Salva(copia.cartella / "s.sic"));
    RC_ASSERT(LeggiFile(origine.cartella / "s.sic") == LeggiFile(copia.cartella / "s.sic"));
}

} // namespace
} // namespace ordavel
