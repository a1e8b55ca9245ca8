// ModGaranzia.cpp - each column against the reduced ones.

#include "riduzione/ModGaranzia.hpp"

#include "core/FileBinario.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/BlocchiColonne.hpp"
#include "riduzione/ColonneCoprenti.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace ordavel {

namespace {

/// Columns that can be gone through more than once.
class Sorgente {
public:
    Sorgente() = default;
    Sorgente(const Sorgente&) = delete;
    Sorgente& operator=(const Sorgente&) = delete;
    virtual ~Sorgente() = default;

    [[nodiscard]] virtual std::int64_t Quante() = 0;
    virtual void Ricomincia() = 0;
    /// None at the end.
    [[nodiscard]] virtual std::span<const Colonna> Prossimo() = 0;
};

class SorgenteFile : public Sorgente {
public:
    explicit SorgenteFile(const std::string& sPath)
        : m_File(sPath, eApertura::lettura),
          m_nColonne(ColonneArrotondate(m_File)),
          m_Blocchi(m_File, 0, m_nColonne)
    {}

    [[nodiscard]] std::int64_t Quante() override { return m_nColonne; }
    void Ricomincia() override { m_Blocchi.Ricomincia(); }
    [[nodiscard]] std::span<const Colonna> Prossimo() override { return m_Blocchi.Prossimo(); }
    [[nodiscard]] Colonna Leggi(std::int64_t nId) { return LeggiColonna(m_File, nId); }

private:
    FileBinario m_File;
    std::int64_t m_nColonne;
    BlocchiColonne m_Blocchi;
};

class SorgenteMemoria : public Sorgente {
public:
    explicit SorgenteMemoria(std::span<const Colonna> aColonne) : m_aColonne(aColonne), m_aResto(aColonne) {}

    [[nodiscard]] std::int64_t Quante() override { return std::ssize(m_aColonne); }
    void Ricomincia() override { m_aResto = m_aColonne; }
    [[nodiscard]] std::span<const Colonna> Prossimo() override { return std::exchange(m_aResto, {}); }

private:
    std::span<const Colonna> m_aColonne;
    std::span<const Colonna> m_aResto;
};

/// The reduced columns, handed over part by part.
class Parti {
public:
    explicit Parti(Sorgente& ridotte) : m_Ridotte(ridotte), m_aResto(ridotte.Prossimo()) {}

    /// Fills up with the next reduced columns.
    /// Gives    how many; 0 at the end
    [[nodiscard]] std::int64_t Riempi(ColonneCoprenti& coprenti)
    {
        std::int64_t nMesse = 0;
        while (!m_aResto.empty() && coprenti.Aggiungi(m_aResto.front())) {
            ++nMesse;
            m_aResto = m_aResto.subspan(1);
            if (m_aResto.empty()) {
                m_aResto = m_Ridotte.Prossimo();
            }
        }
        return nMesse;
    }

private:
    Sorgente& m_Ridotte;
    std::span<const Colonna> m_aResto;
};

/// One bit for each column of the file: has a reduced one been found that covers it?
class Controllo {
public:
    Controllo(Sorgente& colonne, Sorgente& ridotte, AvanzamentoRiduzione* avanzamento)
        : m_Colonne(colonne),
          m_Ridotte(ridotte),
          m_Avanzamento(avanzamento),
          m_aCoperte(static_cast<std::size_t>(colonne.Quante()))
    {}

    void Esegui(std::int16_t nClasse, std::int32_t nPunti, std::size_t nByte)
    {
        ColonneCoprenti coprenti(nClasse, nPunti, m_Ridotte.Quante(), nByte);
        Parti parti(m_Ridotte);
        for (auto nParte = parti.Riempi(coprenti); nParte > 0; nParte = parti.Riempi(coprenti)) {
            Passa(coprenti, static_cast<double>(nParte));
            m_nRidotteFatte += static_cast<double>(nParte);
            coprenti.Svuota();
        }
    }

    [[nodiscard]] const std::vector<bool>& Coperte() const noexcept { return m_aCoperte; }

private:
    void Passa(const ColonneCoprenti& coprenti, double nParte)
    {
        m_Colonne.Ricomincia();
        std::size_t i = 0;
        for (auto aBlocco = m_Colonne.Prossimo(); !aBlocco.empty(); aBlocco = m_Colonne.Prossimo()) {
            for (const Colonna& colonna : aBlocco) {
                m_aCoperte[i] = m_aCoperte[i] || coprenti.Copre(colonna);
                ++i;
            }
            Mostra(nParte * static_cast<double>(i) / static_cast<double>(m_aCoperte.size()));
        }
    }

    void Mostra(double nDellaParte)
    {
        if (m_Avanzamento != nullptr) {
            m_Avanzamento->MostraPercentuale(
                PercentualeProgress(m_nRidotteFatte + nDellaParte, static_cast<double>(m_Ridotte.Quante())));
            m_Avanzamento->LasciaEventi();
        }
    }

    Sorgente& m_Colonne;
    Sorgente& m_Ridotte;
    AvanzamentoRiduzione* m_Avanzamento;
    double m_nRidotteFatte = 0;
    std::vector<bool> m_aCoperte;
};

std::int16_t ClasseDi(const Colonna& colonna)
{
    std::int16_t nClasse = kNumeriColonna;
    while (nClasse > 0 && colonna[nClasse] == 0) {
        --nClasse;
    }
    return nClasse;
}

/// Points below 0 mean 0, points above the class are out of reach as one above it is.
std::int32_t Punti(std::int16_t nClasse, std::int32_t nPunti)
{
    return std::clamp(nPunti, 0, nClasse + 1);
}

EsitoGaranzia Controlla(const std::string& sFile, const std::string& sFileRidotto, std::int32_t nPunti,
                        AvanzamentoRiduzione* avanzamento, std::size_t nByte)
{
    SorgenteFile colonne(sFile);
    SorgenteFile ridotte(sFileRidotto);
    const std::int16_t nClasse = ClasseDi(colonne.Leggi(1));
    Controllo controllo(colonne, ridotte, avanzamento);
    controllo.Esegui(nClasse, Punti(nClasse, nPunti), nByte);
    const std::vector<bool>& aCoperte = controllo.Coperte();
    EsitoGaranzia esito;
    esito.nControllate = colonne.Quante();
    esito.nScoperte = std::count(aCoperte.begin(), aCoperte.end(), false);
    if (esito.nScoperte > 0) {
        esito.nPrimaScoperta = std::find(aCoperte.begin(), aCoperte.end(), false) - aCoperte.begin() + 1;
        esito.primaScoperta = colonne.Leggi(esito.nPrimaScoperta);
    }
    return esito;
}

} // namespace

EsitoGaranzia ControllaGaranzia(const std::string& sFile, const std::string& sFileRidotto,
                                std::int32_t nPunti, std::size_t nByte)
{
    return Controlla(sFile, sFileRidotto, nPunti, nullptr, nByte);
}

EsitoGaranzia ControllaGaranzia(const std::string& sFile, const std::string& sFileRidotto,
                                std::int32_t nPunti, AvanzamentoRiduzione& avanzamento, std::size_t nByte)
{
    EsitoGaranzia esito = Controlla(sFile, sFileRidotto, nPunti, &avanzamento, nByte);
    avanzamento.MostraPercentuale(0);
    return esito;
}

std::optional<std::size_t> PrimaScoperta(std::span<const Colonna> aColonne, std::span<const Colonna> aRidotte,
                                         std::int32_t nPunti, std::size_t nByte)
{
    if (aColonne.empty()) {
        return std::nullopt;
    }
    SorgenteMemoria colonne(aColonne);
    SorgenteMemoria ridotte(aRidotte);
    const std::int16_t nClasse = ClasseDi(aColonne.front());
    Controllo controllo(colonne, ridotte, nullptr);
    controllo.Esegui(nClasse, Punti(nClasse, nPunti), nByte);
    const std::vector<bool>& aCoperte = controllo.Coperte();
    const auto prima = std::find(aCoperte.begin(), aCoperte.end(), false);
    return prima == aCoperte.end() ? std::nullopt
                                   : std::optional(static_cast<std::size_t>(prima - aCoperte.begin()));
}

} // namespace ordavel
