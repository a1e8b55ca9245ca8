// OrdavelEsporta.cpp - the columns of the working file as text.

#include "ordavel/Ordavel.hpp"

#include "controllo/F_Progress.hpp"
#include "core/Cadenza.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>

namespace ordavel {

namespace {

/// Lines in one write.
constexpr std::int64_t kRigheBuffer = 1000;
/// At its multiples nobody is asked: the progress is shown at all other lines.
constexpr std::int64_t kRigheSenzaProgresso = 100;

/// Columns from nPrima on, as many as aColonne has; what the file does not hold reads as 0.
void LeggiBlocco(FileBinario& file, std::int64_t nPrima, std::span<Colonna> aColonne)
{
    std::fill(aColonne.begin(), aColonne.end(), Colonna{});
    file.Leggi((nPrima - 1) * kByteColonna + 1, std::as_writable_bytes(aColonne));
}

} // namespace

/// The component is busy with an export, and shows how far it is, for as long as it lives.
class Ordavel::ExportInVista {
public:
    explicit ExportInVista(Ordavel& ordavel) : m_Ordavel(ordavel), m_Progress(*ordavel.m_Ospite)
    {
        m_Ordavel.m_bInCorso = true;
        m_Ordavel.m_Piattaforma.MostraAccanto(m_Progress);
        Mostra(0);
        m_Ordavel.m_Controlli.PanPerc.Visibile.Poni(true);
    }
    ExportInVista(const ExportInVista&) = delete;
    ExportInVista& operator=(const ExportInVista&) = delete;
    ~ExportInVista()
    {
        m_Ordavel.m_Controlli.PanPerc.Visibile.Poni(false);
        m_Ordavel.m_Controlli.Componente.Abilitato.Poni(true);
        m_Progress.Nascondi({});
        m_Ordavel.m_bInCorso = false;
    }

    /// Writes the columns of the working file behind what sFile holds.
    /// Gives    whether it came to the last one
    bool Esporta(const std::string& sFile)
    {
        m_Ordavel.m_Piattaforma.LasciaEventi();
        m_Ordavel.m_Controlli.Componente.Abilitato.Poni(false);
        m_nColonne = static_cast<std::int64_t>(ArrotondaPari(NumeroColonneFile(m_Ordavel.m_FileColonne)));
        FileBinario testo(sFile, eApertura::scrittura);
        FileBinario colonne(m_Ordavel.m_FileColonne, eApertura::lettura);
        std::vector<Colonna> aBlocco;
        for (bool bContinua = true; bContinua && m_nRighe < m_nColonne;) {
            aBlocco.resize(static_cast<std::size_t>(std::min(kRigheBuffer, m_nColonne - m_nRighe)));
            LeggiBlocco(colonne, m_nRighe + 1, aBlocco);
            bContinua = ScriviBlocco(aBlocco, testo);
        }
        testo.Chiudi();
        return m_nRighe == m_nColonne;
    }

private:
    void Mostra(std::int16_t nPercentuale)
    {
        m_Ordavel.m_Controlli.PanPerc.Valore.Poni(nPercentuale);
        m_Progress.ProgBarXP1.Valore.Poni(nPercentuale);
    }

    /// Gives    false when the export is to end; the lines up to there are written
    bool ScriviBlocco(std::span<const Colonna> aBlocco, FileBinario& testo)
    {
        m_sBuffer.clear();
        const bool bContinua = std::all_of(aBlocco.begin(), aBlocco.end(), [this](const Colonna& colonna) {
            AccodaColonnaFormattata(colonna.aNumeri, false, m_sBuffer);
            m_sBuffer += kCrLf;
            return Avanza();
        });
        testo.Accoda(std::as_bytes(std::span(m_sBuffer)));
        return bContinua;
    }

    /// One line more: shows how far it is and lets events run, both now and then. A stop that comes inside them is seen at the next
    /// line.
    /// Gives    false when the export is to end
    bool Avanza()
    {
        ++m_nRighe;
        if (m_nRighe % kRigheSenzaProgresso == 0) {
            return true;
        }
        const auto adesso = m_Ordavel.m_Piattaforma.Adesso();
        if (m_Mostra.Scaduta(adesso) || m_nRighe == m_nColonne) {
            Mostra(PercentualeProgress(static_cast<double>(m_nRighe), static_cast<double>(m_nColonne)));
        }
        if (m_Ordavel.m_StopExport) {
            return false;
        }
        if (m_Eventi.Scaduta(adesso)) {
            m_Ordavel.m_Piattaforma.LasciaEventi();
        }
        return true;
    }

    Ordavel& m_Ordavel;
    F_Progress m_Progress;
    Cadenza m_Mostra{kOgniMostra};
    Cadenza m_Eventi{kOgniEventi};
    std::string m_sBuffer;
    std::int64_t m_nColonne = 0; ///< in the working file
    std::int64_t m_nRighe = 0;   ///< made so far
};

std::string Ordavel::NomeSuggerito() const
{
    const std::string sSistema = SenzaEstensione(NomeDi(m_FileSistema));
    return sSistema.empty() ? "NuovoSistema" : sSistema;
}

bool Ordavel::SalvaFileColonneTesto()
{
    if (m_bInCorso) {
        return false;
    }
    const PuntatoreInAttesa attesa(m_Piattaforma);
    std::optional<ExportInVista> vista; // goes only when the box of a failure has been seen
    m_StopExport = false;
    bool bTutte = false;
    ConGestore(m_Piattaforma, "OrdavelSisA.SalvaFileColonneTesto", [&] {
        const std::string sFile = m_Piattaforma.DialogoSalva({.sTitolo = "Salva colonne formato testo",
                                                              .sFiltro = "File di testo (*.txt)|*.txt",
                                                              .sEstensione = ".txt",
                                                              .sNomeFile = NomeSuggerito() + ".txt",
                                                              .sCartella = m_PercorsoSalvaColonne});
        if (sFile.empty()) {
            return;
        }
        // Nothing is deleted for the sake of columns that cannot be read, and never the columns themselves.
        FileBinario(m_FileColonne, eApertura::lettura).Chiudi();
        std::error_code codice;
        if (std::filesystem::equivalent(sFile, m_FileColonne, codice)) {
            throw Errore(eErrore::argomento, sFile);
        }
        if (KillFile(sFile, m_Piattaforma)) {
            vista.emplace(*this);
            bTutte = vista->Esporta(sFile);
        }
    });
    return bTutte;
}

} // namespace ordavel
