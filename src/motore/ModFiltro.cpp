// ModFiltro.cpp - the conditions over an existing file.

#include "motore/ModFiltro.hpp"

#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "motore/BufferColonne.hpp"
#include "motore/ModSviluppo.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <span>
#include <vector>

namespace ordavel {

namespace {

/// Reads a column file block by block.
class LettoreBlocchi {
public:
    explicit LettoreBlocchi(const std::string& sPath)
        : m_File(sPath, eApertura::lettura),
          m_nLunghezza(m_File.Lunghezza()),
          m_aBlocco(static_cast<std::size_t>(kColonneBuffer))
    {}

    [[nodiscard]] double Totale() const
    {
        return static_cast<double>(m_nLunghezza) / static_cast<double>(kByteColonna);
    }

    /// Columns of a block: 10000 until the last one.
    [[nodiscard]] std::int32_t ColonnePerBlocco() const noexcept { return m_nBlocco; }

    /// The next columns; none at the end. What the file no longer holds reads as 0.
    [[nodiscard]] std::span<const Colonna> Prossimo()
    {
        const auto nByteResto = static_cast<double>(m_nLunghezza - (m_nPosizione - 1));
        const double nResto = ArrotondaPari(nByteResto / static_cast<double>(kByteColonna));
        m_nBlocco = static_cast<std::int32_t>(std::min<double>(m_nBlocco, std::max(nResto, 0.0)));
        const auto aColonne = std::span(m_aBlocco).first(static_cast<std::size_t>(m_nBlocco));
        std::fill(aColonne.begin(), aColonne.end(), Colonna{});
        if (m_nBlocco > 0) {
            m_File.Leggi(m_nPosizione, std::as_writable_bytes(aColonne));
        }
        m_nPosizione += m_nBlocco * kByteColonna;
        return aColonne;
    }

private:
    FileBinario m_File;
    std::int64_t m_nLunghezza;
    std::int64_t m_nPosizione = 1;
    std::int32_t m_nBlocco = kColonneBuffer;
    std::vector<Colonna> m_aBlocco;
};

void Filtra(LettoreBlocchi& origine, std::int16_t nClasse, BufferColonne& buffer, StatoSviluppo& stato,
            Avanzamento& avanzamento)
{
    const double nTotale = origine.Totale();
    for (auto aColonne = origine.Prossimo(); !aColonne.empty(); aColonne = origine.Prossimo()) {
        for (const Colonna& colonna : aColonne) {
            Colonna& candidata = buffer.Candidata();
            candidata = colonna;
            if (VerificaColonna(nClasse, candidata, stato) && buffer.SuperaRiduzione()) {
                Aumenta(stato.nCondizionate, 1);
                buffer.Tieni(origine.ColonnePerBlocco());
            }
            // Unlike a development, a filter also looks at the stop right behind the events that may set it.
            if (!ContaEsaminata(nTotale, stato, avanzamento) || stato.bStopSviluppo) {
                return;
            }
        }
    }
}

} // namespace

void FiltraFile(const std::string& sOrigine, std::int16_t nClasse, std::int16_t nLimite, FileBinario& file,
                StatoSviluppo& stato, Avanzamento& avanzamento)
{
    stato.nSviluppate = 0;
    stato.nCondizionate = 0;
    ConGestore(avanzamento, "ModSistemiCond.FiltraFile", [&] {
        LettoreBlocchi origine(sOrigine);
        BufferColonne buffer(file, nClasse, nLimite);
        Filtra(origine, nClasse, buffer, stato, avanzamento);
        buffer.ScriviResto();
        avanzamento.Mostra(stato.nSviluppate, buffer.Indice() - 1,
                           PercentualeProgress(stato.nSviluppate, origine.Totale()));
    });
}

} // namespace ordavel
