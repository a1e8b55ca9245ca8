// PasseggiataProva.hpp - a system on a random walk, and a short model of what must hold behind every step.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "comune/CartellaProva.hpp"
#include "condizioni/ModRighe.hpp"
#include "controllo/SistemaProva.hpp"
#include "controllo/UtenteCasuale.hpp"
#include "motore/ModIntegrali.hpp"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::prove {

/// The dispatcher of the buttons, as its failures name it.
inline constexpr std::string_view kPulsanti = "OrdavelSis.Toolbar2_ButtonClick";

/// Where a walk begins: its seed, and the conditions that are there before.
struct Partenza {
    unsigned nSeme;
    std::int32_t nRighe;
};

/// A system, its random user, and what must hold of it behind every step.
class PasseggiataProva : public testing::TestWithParam<Partenza> {
protected:
    PasseggiataProva()
    {
        sistema.PoniPercorsoTemp(m_Cartella / "temp");
        sistema.PoniDirSistemi(m_Cartella / "sistemi");
        sistema.PoniPercorsoSalvaColonne(m_Cartella / "salvate");
        PreparaFile();
        for (std::int32_t nRiga = 1; nRiga <= GetParam().nRighe; ++nRiga) {
            Griglia().Riga(nRiga) = {"Ponte", "", "0-1-2-3", "", " "};
        }
        Numeri(1, 7);
        sistema.Eventi().CondizioniPressed = [this] { ++m_nEventi; };
        sistema.Eventi().StampaSk = [this](std::string&) { ++m_nEventi; };
    }

    void PreparaFile()
    {
        ScriviFile(m_Cartella / "corto.sic", std::string(316, '\0'));
        ScriviFile(m_Cartella / "a.col", ByteDi({{1, 2, 3, 4, 5}, {1, 3, 5, 7, 9}}));
        ScriviFile(m_Cartella / "vuoto.col", "");
        ScriviTesti();
        utente.aFile["*.sic"] = {m_Cartella / "a.sic", m_Cartella / "b.sic", m_Cartella / "corto.sic"};
        utente.aFile["*.cnd"] = {m_Cartella / "sistemi/a.cnd", m_Cartella / "sistemi/b.cnd"};
        utente.aFile["*.col"] =
            utente.aFile["*.col)"] = {m_Cartella / "a.col", m_Cartella / "vuoto.col", m_Cartella / "b.col"};
        utente.aFile["*.txt"] = {m_Cartella / "a.txt", m_Cartella / "b.txt"};
    }

    void ScriviTesti()
    {
        ScriviFile(m_Cartella / "a.txt", "1 2 3 4\n5 6 7\nnulla\n");
        ScriviFile(m_Cartella / "b.txt", "");
    }

    [[nodiscard]] GrigliaCondizioni& Griglia() { return sistema.GetGridCond(); }
    [[nodiscard]] ControlliOrdavel& Controlli() { return sistema.Controlli(); }
    [[nodiscard]] std::int32_t Ultima() { return UltimaRigaOccupata(Griglia()); }
    [[nodiscard]] bool FileDiLavoro() { return std::filesystem::exists(sistema.FileColonne()); }

    void Premi(std::string_view sChiave) { sistema.Toolbar2_ButtonClick(sChiave); }
    void Voce(std::string_view sChiave) { sistema.Toolbar2_ButtonMenuClick(sChiave); }

    // ---- the model ----

    void Sporca(bool bFatto = true)
    {
        m_bModificato = m_bModificato || bFatto;
        m_bValide = m_bValide && !bFatto;
    }

    void ContaIntegrali()
    {
        m_sIntegrale = FormattaNumero(CalcolaIntegrali(sistema.ContaNumeriSel(), sistema.classe()));
    }

    void ContaNumeri()
    {
        ContaIntegrali();
        m_sNumSel = std::to_string(sistema.ContaNumeriSel());
    }

    void PulisciEtichette()
    {
        m_sIntegrale = m_sNumSel = "";
        m_bFiltra = false;
    }

    /// Do the links of the first rows match? `bAncheAperti`: one that is never closed counts as well.
    [[nodiscard]] bool LinkCoerenti(bool bAncheAperti)
    {
        int nAperti = 0;
        for (std::int32_t nRiga = 1; !Griglia().Vuota(nRiga) && nAperti >= 0; ++nRiga) {
            nAperti += Griglia().Riga(nRiga).sCondizione == "LinkOpen" ? 1 : 0;
            nAperti -= Griglia().Riga(nRiga).sCondizione == "LinkClose" ? 1 : 0;
        }
        return nAperti == 0 || (nAperti > 0 && !bAncheAperti);
    }

    [[nodiscard]] std::int32_t Buchi()
    {
        std::int32_t nBuchi = 0;
        for (std::int32_t nRiga = Ultima(); nRiga >= 1; --nRiga) {
            nBuchi += Griglia().Vuota(nRiga) ? 1 : 0;
        }
        return nBuchi;
    }

    void Attendi(const Messaggio& messaggio) { m_aAttesi.push_back(messaggio); }

    /// The question about changes that would be lost.
    /// Gives    whether the command goes on
    bool Perdita()
    {
        if (!m_bModificato) {
            return true;
        }
        Attendi(Domanda("Il sistema è stato modificato ma non ancora salvato.Continuare ?"));
        return utente.bSi;
    }

    void Numeri(std::int16_t nPrimo, std::int16_t nUltimo)
    {
        for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
            sistema.SelezionaNumero(n, n >= nPrimo && n <= nUltimo);
        }
        ContaNumeri();
    }

    // ---- a step ----

    void Prepara()
    {
        utente.Ricomincia();
        utente.nClasse = sistema.classe();
        utente.nBeep = m_nEventi = m_nBuchiNuovi = 0;
        m_aAttesi.clear();
        if (Griglia().Corrente() == 0) {
            sistema.GrdCond_EnterCell(1);
        }
        m_nBuchi = Buchi();
    }

    void Controlla()
    {
        EXPECT_EQ(utente.aVisti, m_aAttesi);
        EXPECT_FALSE(utente.Occupato());
        ControllaFlag();
        ControllaEtichette();
        ControllaComandi();
        EXPECT_LE(Ultima(), kCondizioniMassime);
        EXPECT_LE(Buchi(), m_nBuchi + m_nBuchiNuovi);
    }

    void ControllaFlag()
    {
        EXPECT_EQ(sistema.Modificato(), m_bModificato);
        EXPECT_EQ(sistema.ColonneValide(), m_bValide);
        EXPECT_EQ(sistema.FileSistema(), m_sNome);
    }

    void ControllaEtichette()
    {
        EXPECT_EQ(Controlli().LabNumSel.Testo.Valore(), m_sNumSel);
        EXPECT_EQ(Controlli().LabIntegrale.Testo.Valore(), m_sIntegrale);
        EXPECT_EQ(Controlli().LabGaranzia.Testo.Valore(),
                  "A condizioni superate garanzia " + std::to_string(sistema.classe() - sistema.Riduzione()));
        if (utente.aVisti == std::vector{FineSviluppo()}) {
            EXPECT_EQ(Controlli().LabCondizionate.Testo.Valore(), FormattaNumero(sistema.QuantitaColonne()));
        }
    }

    /// Only what the state has no object for is disabled, and no run is in view.
    void ControllaComandi()
    {
        std::set<std::string> aSpenti{"Stop"};
        if (!m_bVoceSalva) {
            aSpenti.insert("Salva");
        }
        if (!m_bFiltra) {
            aSpenti.insert("FiltraSvilPrec");
        }
        if (!FileDiLavoro()) {
            aSpenti.insert({"VisualizzaColonne", "SalvaColonne", "SalvaColonneTesto"});
        }
        EXPECT_EQ(Spenti(), aSpenti);
        EXPECT_FALSE(Controlli().PanSviluppo.Visibile.Valore() || Controlli().PanPerc.Visibile.Valore());
        EXPECT_TRUE(Controlli().Componente.Abilitato.Valore() && Controlli().CmbClasse.Abilitato.Valore());
    }

    [[nodiscard]] std::set<std::string> Spenti()
    {
        std::set<std::string> aChiavi;
        for (const PulsanteStrumento& pulsante : Controlli().Toolbar2.aPulsanti) {
            if (!pulsante.Abilitato.Valore()) {
                aChiavi.insert(pulsante.sChiave);
            }
            for (const VoceMenu& voce : pulsante.aMenu) {
                if (!voce.Abilitato.Valore()) {
                    aChiavi.insert(voce.sChiave);
                }
            }
        }
        return aChiavi;
    }

    CartellaProva m_Cartella;
    UtenteCasuale utente{GetParam().nSeme};
    Ordavel sistema{utente};

    std::vector<Messaggio> m_aAttesi; ///< boxes of the step
    std::string m_sNome;
    std::string m_sIntegrale;
    std::string m_sNumSel;
    TipoCondizione m_Ultimo = TipoCondizione::nessuno;
    std::int32_t m_nBuchi = 0;      ///< empty rows in the block before the step
    std::int32_t m_nBuchiNuovi = 0; ///< how many the step may open
    int m_nEventi = 0;
    bool m_bModificato = false;
    bool m_bValide = false;
    bool m_bVoceSalva = false;
    bool m_bFiltra = false;
    bool m_bNaviga = false;
};

} // namespace ordavel::prove
