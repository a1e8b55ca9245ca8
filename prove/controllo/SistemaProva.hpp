// SistemaProva.hpp - a component over a played desktop, in folders of its own.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/ColonneProva.hpp"
#include "comune/PiattaformaProva.hpp"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::prove {

/// The bytes of a column file.
inline std::string ByteDi(std::initializer_list<std::vector<int>> aColonne)
{
    std::string sByte;
    for (const std::vector<int>& aNumeri : aColonne) {
        const auto& aColonna = ColonnaDi(aNumeri).colonna.aNumeri;
        sByte.append(aColonna.begin(), aColonna.end());
    }
    return sByte;
}

/// A file of zeros that takes no room on the disk.
inline void ScriviFileRado(const std::string& sPath, std::uintmax_t nByte)
{
    ScriviFile(sPath, "");
    std::filesystem::resize_file(sPath, nByte);
}

/// The box at the end of a run.
inline Messaggio FineSviluppo(std::string_view sTempo = "00:00:00")
{
    return {.icona = eIcona::informazione,
            .sTitolo = "Sviluppo",
            .sTesto = "Fine sviluppo \r\n" + std::string(sTempo),
            .pulsanti = ePulsanti::ok};
}

/// The component, its desktop and its folders. A fixture may be made of it, and a second system beside it.
struct SistemaProva {
    SistemaProva()
    {
        sistema.PoniPercorsoTemp(cartella / "temp");
        sistema.PoniDirSistemi(cartella / "sistemi");
        sistema.PoniPercorsoSalvaColonne(cartella / "salvate");
    }

    [[nodiscard]] std::string Temp(std::string_view sNome) const
    {
        return sistema.PercorsoTemp() + std::string(sNome);
    }

    [[nodiscard]] std::string ByteColonne() const { return LeggiFile(sistema.FileColonne()); }

    /// Selects the numbers nPrimo to nUltimo and a class.
    void Pronostico(std::int16_t nClasse, std::int16_t nPrimo, std::int16_t nUltimo)
    {
        sistema.PoniClasse(nClasse);
        for (std::int16_t n = nPrimo; n <= nUltimo; ++n) {
            sistema.SelezionaNumero(n, true);
        }
    }

    /// Selects some numbers and a class.
    void Pronostico(std::int16_t nClasse, std::initializer_list<std::int16_t> aNumeri)
    {
        sistema.PoniClasse(nClasse);
        for (const std::int16_t n : aNumeri) {
            sistema.SelezionaNumero(n, true);
        }
    }

    /// Develops, and expects nothing but the box at the end.
    void Sviluppa()
    {
        EXPECT_TRUE(sistema.GestSviluppo());
        EXPECT_THAT(piattaforma.Messaggi(), testing::ElementsAre(FineSviluppo()));
    }

    /// Filters a file, and expects nothing but the box at the end.
    void Filtra(const std::string& sFile)
    {
        EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(sFile));
        EXPECT_THAT(piattaforma.Messaggi(), testing::ElementsAre(FineSviluppo()));
    }

    /// Opens a system file, as a user who chooses it.
    bool Apri(const std::string& sFile)
    {
        piattaforma.Scegli(sFile);
        return sistema.Apri();
    }

    /// Saves under a name that is not asked for.
    bool Salva(std::string sFile) { return sistema.Salva(sFile, true); }

    [[nodiscard]] bool Abilitato(std::string_view sPulsante)
    {
        return sistema.Controlli().Toolbar2.Pulsante(sPulsante).Abilitato.Valore();
    }

    [[nodiscard]] bool VoceAbilitata(std::string_view sVoce)
    {
        return sistema.Controlli().Toolbar2.Voce(sVoce).Abilitato.Valore();
    }

    /// The keys of the enabled buttons.
    [[nodiscard]] std::vector<std::string> Abilitati()
    {
        std::vector<std::string> aChiavi;
        for (const PulsanteStrumento& pulsante : sistema.Controlli().Toolbar2.aPulsanti) {
            if (pulsante.Abilitato.Valore()) {
                aChiavi.push_back(pulsante.sChiave);
            }
        }
        return aChiavi;
    }

    /// What the labels say: columns examined, columns kept.
    [[nodiscard]] std::vector<std::string> Conteggi()
    {
        return {sistema.Controlli().LabSviluppate.Testo.Valore(),
                sistema.Controlli().LabCondizionate.Testo.Valore()};
    }

    CartellaProva cartella;
    PiattaformaProva piattaforma;
    Ordavel sistema{piattaforma};
};

/// A condition that no column can be judged by: the rest of a division by 20 goes beyond a list.
inline Condizione CondizioneGuasta()
{
    return {"Resto", "Resto a : 20", "1", "", ""};
}

/// What it fails with when it stands in row 1.
inline Errore ErroreGuasta()
{
    return {eErrore::indice, "condizione 1 Resto"};
}

} // namespace ordavel::prove
