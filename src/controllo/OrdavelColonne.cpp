// OrdavelColonne.cpp - the working column file: counted, read, copied, saved.

#include "ordavel/Ordavel.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <filesystem>
#include <system_error>

namespace ordavel {

std::int32_t Ordavel::QuantitaColonne()
{
    std::int32_t nColonne = 0;
    ConGestore(m_Piattaforma, "OrdavelSisG.QuantitaColonne",
               [&] { nColonne = ComeIntero<std::int32_t>(NumeroColonneFile(m_FileColonne)); });
    return nColonne;
}

bool Ordavel::GetColonneSviluppo(std::vector<Colonna>& aRetCol)
{
    const PuntatoreInAttesa attesa(m_Piattaforma);
    aRetCol.assign(1, Colonna{});
    ConGestore(m_Piattaforma, "OrdavelSisG.GetColonneSviluppo", [&] {
        double nColonne = NumeroColonneFile(m_FileColonne);
        if (!(nColonne > 0)) {
            return;
        }
        if (nColonne > kColonneInMemoria) {
            Avvisa("Le colonne da controllare superano il limite massimo gestibile di " +
                   std::to_string(kColonneInMemoria) + " e verranno troncate");
            nColonne = kColonneInMemoria;
        }
        // A rest of half a column or less is none.
        if (const auto nIntere = ComeIntero<std::int32_t>(nColonne); nIntere > 0) {
            aRetCol = LeggiColonne(m_FileColonne, nIntere);
        }
    });
    return false;
}

std::string Ordavel::GetColonnaSviluppo(std::int32_t nId)
{
    std::string sColonna;
    ConGestore(m_Piattaforma, "OrdavelSisG.GetColonnaSviluppo", [&] {
        FileBinario file(m_FileColonne, eApertura::lettura);
        sColonna = FormattaColonna(LeggiColonna(file, nId).aNumeri, false);
    });
    return sColonna;
}

std::string Ordavel::GetColonnaSviluppoFromFile(std::int32_t nId, FileBinario& file)
{
    std::string sColonna;
    ConGestore(m_Piattaforma, "OrdavelSisG.GetColonnaSviluppo", [&] {
        // The place in the file is a 32-bit number here; one that does not fit is refused.
        const double nPosto = (static_cast<double>(nId) - 1) * static_cast<double>(kByteColonna) + 1;
        const std::int64_t nPrimo = ComeIntero<std::int32_t>(nPosto);
        sColonna = FormattaColonna(LeggiColonna(file, (nPrimo - 1) / kByteColonna + 1).aNumeri, false);
    });
    return sColonna;
}

bool Ordavel::SalvaFileColonne()
{
    if (m_bInCorso) {
        return false;
    }
    bool bCopiato = false;
    ConGestore(m_Piattaforma, "OrdavelSisG.SalvaFileColonne", [&] {
        const std::string sFile = m_Piattaforma.DialogoSalva({.sTitolo = "Salva colonne",
                                                              .sFiltro = "File colonne (*.col)|*.col",
                                                              .sEstensione = ".col",
                                                              .sNomeFile = NomeSuggerito() + ".col",
                                                              .sCartella = m_PercorsoSalvaColonne});
        if (sFile.empty() || !KillFile(sFile, m_Piattaforma)) {
            return;
        }
        std::error_code codice;
        std::filesystem::copy_file(m_FileColonne, sFile, codice);
        if (codice) {
            throw ErroreDiSistema(codice.value(), FileEsiste(m_FileColonne) ? sFile : m_FileColonne);
        }
        bCopiato = true;
    });
    return bCopiato;
}

void Ordavel::ApriFileColonne(const std::string& sFile)
{
    ConGestore(m_Piattaforma, "OrdavelSisA.ApriFileColonne", [&] {
        const bool bEsiste = FileEsiste(sFile);
        m_Controlli.LabCondizionate.Testo.Poni(
            bEsiste ? FormattaNumero(ArrotondaPari(NumeroColonneFile(sFile))) : std::string());
    });
}

void Ordavel::ApriColonne(FileBinario& sistema)
{
    const PuntatoreInAttesa attesa(m_Piattaforma);
    ConGestore(m_Piattaforma, "OrdavelSisG.ApriColonne", [&] {
        const std::int64_t nInizio = TrovaInizioColonne(sistema);
        if (nInizio < 1) {
            m_Controlli.LabCondizionate.Testo.Poni({});
            return;
        }
        if (KillFile(m_FileColonne, m_Piattaforma)) {
            EstraiColonne(sistema, nInizio, m_FileColonne);
            ApriFileColonne(m_FileColonne);
        }
    });
}

void Ordavel::AppendiColonneAFileSistema(FileBinario& sistema)
{
    const PuntatoreInAttesa attesa(m_Piattaforma);
    ConGestore(m_Piattaforma, "OrdavelSisG.AppendiColonneAFileSistema", [&] {
        if (m_ColonneValide && NumeroColonneFile(m_FileColonne) > 0) {
            AppendiColonne(m_FileColonne, sistema);
        }
    });
}

} // namespace ordavel
