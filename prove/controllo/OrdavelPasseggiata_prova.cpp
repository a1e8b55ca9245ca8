// OrdavelPasseggiata_prova.cpp - long random walks over all commands, by a user who answers by chance.

#include "ordavel/Ordavel.hpp"

#include "controllo/PasseggiataProva.hpp"

#include <utility>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::Domanda;
using prove::FineSviluppo;
using prove::kPulsanti;
using prove::Partenza;

class OrdavelPasseggiata : public prove::PasseggiataProva {
protected:
    static constexpr int kPassi = 500;

    // ---- conditions ----

    void Inserisci()
    {
        using enum TipoCondizione;
        const TipoCondizione aTipi[]{consecutivi, ponte, cadenze, linkOpen, interruzioniPD};
        sistema.InsCondizione(aTipi[utente.Tra(0, 4)], "0,1,2");
        Sporca();
    }

    void DaMenu()
    {
        const auto tipo = static_cast<TipoCondizione>(utente.Tra(3, kTipiCondizione));
        const bool bRifiuto = tipo == TipoCondizione::emulatore && sistema.IsCondizionePresente("Emulatore");
        Voce(TrovaTipo(tipo)->sMenu);
        if (bRifiuto) {
            return Attendi(Avviso("Si può inserire un solo filtro emulatore"));
        }
        m_Ultimo = tipo;
        EXPECT_THAT(utente.aMostrati, testing::ElementsAre(TrovaTipo(tipo)->sDialogo));
        Sporca(utente.bConfermato);
    }

    void Ripeti()
    {
        Premi("Condizioni");
        EXPECT_EQ(utente.aMostrati.size(), m_Ultimo == TipoCondizione::nessuno ? 0U : 1U);
        EXPECT_EQ(m_nEventi, 1);
        Sporca(utente.bConfermato);
    }

    void ApriLink()
    {
        Premi("LinkOpen");
        Sporca();
    }

    void ChiudiLink()
    {
        Premi("LinkClose");
        Sporca(utente.bConfermato);
    }

    /// A row whose values have no box in the present class fails before its dialog is shown.
    void Modifica()
    {
        const VoceCatalogo* voce = TrovaChiaveSenzaCaso(Griglia().Riga(Griglia().Corrente()).sCondizione);
        Premi("Edit");
        if (voce != nullptr && !voce->sDialogo.empty() && utente.aMostrati.empty()) {
            Attendi(prove::Fallimento(kPulsanti, Errore(eErrore::indice)));
        }
        Sporca(utente.bConfermato);
    }

    /// The tree cannot show an end of a link without its beginning.
    void AttendiAlbero()
    {
        if (m_bNaviga && !LinkCoerenti(false)) {
            ASSERT_EQ(utente.aVisti.size(), 1U);
            EXPECT_EQ(utente.aVisti.front().sTitolo, kPulsanti);
            EXPECT_EQ(utente.aVisti.front().sTesto.substr(0, 2), "91");
            utente.aVisti.clear();
        }
    }

    void Elimina()
    {
        Premi("Delete");
        AttendiAlbero();
        Sporca();
    }

    void EliminaTratto()
    {
        Voce("DelCondizioni");
        m_nBuchiNuovi = utente.bConfermato ? utente.nTratto : 0;
    }

    void ApriRiga()
    {
        Premi("Inserisci");
        m_nBuchiNuovi = 1;
    }

    void ScegliRiga() { sistema.GrdCond_EnterCell(utente.Tra(1, std::min(Ultima() + 1, 2000))); }

    void Quadro()
    {
        Premi("QuadroRecuperi");
        Sporca(utente.bConfermato);
    }

    /// Rows of a file that go beyond the last one would fail.
    void DaFile()
    {
        if (Ultima() < 1900 && utente.UnaVoltaSu(2)) {
            Premi("GestCondizioni");
        } else if (Ultima() < 1900) {
            Voce("PuntiSuColonnaTxt");
            m_Ultimo = TipoCondizione::nessuno;
            Sporca(utente.bConfermato);
        }
    }

    // ---- numbers, class, game ----

    void UnNumero()
    {
        const auto nNumero = static_cast<std::int16_t>(utente.Tra(1, 9));
        sistema.SelezionaNumero(nNumero, !Controlli().SelnovoNumeri1.Scelto(nNumero));
        ContaNumeri();
    }

    void ChiudiSelettore()
    {
        Controlli().Toolbar2.Pulsante("SelNumeri").Premuto.Poni(true);
        Premi("SelNumeri");
        EXPECT_TRUE(Controlli().SelnovoNumeri1.Visibile.Valore());
        sistema.SelnovoNumeri1_Chiuso();
        Sporca();
    }

    void Classe()
    {
        const std::int16_t nPrima = sistema.classe();
        sistema.PoniClasse(static_cast<std::int16_t>(utente.Tra(1, 7)));
        if (sistema.classe() != nPrima) {
            ContaIntegrali();
        }
    }

    void Gioco()
    {
        const std::int16_t nPrima = sistema.GetIdCmbTipoGioco();
        Controlli().CmbTipoGioco.Indice.Poni(utente.Tra(0, 4));
        if (sistema.GetIdCmbTipoGioco() != nPrima) {
            ContaIntegrali();
        }
    }

    void Riduci() { Controlli().CmbRid.Indice.Poni(utente.Tra(0, 2)); }

    // ---- runs ----

    /// A condition made for another class may fail a run, which says so and ends.
    bool Fallita(std::string_view sOrigine)
    {
        return std::erase_if(utente.aVisti, [sOrigine](const Messaggio& m) {
                   return m.icona == eIcona::critico && m.sTitolo == sOrigine;
               }) == 1;
    }

    /// What a run over some columns, or none, shows.
    /// Gives    whether it was begun
    bool AttendiCorsa(bool bColonne)
    {
        if (!bColonne) {
            return false;
        }
        if (!LinkCoerenti(true)) {
            Attendi(Avviso("Link non valide"));
            return false;
        }
        if (sistema.IsCondizionePresente("Emulatore")) {
            // There are no archives here.
            EXPECT_EQ(std::erase(utente.aVisti, prove::EmulatoreNonCreato()), 1U);
        }
        // A filter shows its own failure and counts as one that was not stopped.
        m_bValide =
            Fallita("ModSistemiCond.FiltraFile") || !Fallita("ModSistemiCond.InitSviluppoSistCondizionato");
        Attendi(FineSviluppo());
        return true;
    }

    void Sviluppa()
    {
        if (sistema.classe() > sistema.ContaNumeriSel()) {
            Premi("SviluppaCond");
            return Attendi(Avviso("Impostare il pronostico"));
        }
        Premi("SviluppaCond");
        m_bFiltra = AttendiCorsa(true) || m_bFiltra;
    }

    /// 26334 columns; the user thinks of stopping at the first refresh, and tries all other commands as well.
    void SviluppaEFerma()
    {
        if (Ultima() > 30 || !LinkCoerenti(true)) {
            return;
        }
        sistema.PoniClasse(5);
        Numeri(1, 22);
        utente.nEventi = 0;
        utente.eventi = [this] {
            if (utente.nEventi == 2) {
                PremiTutto();
            }
        };
        Premi("SviluppaCond");
        utente.eventi = {};
        if (utente.nEventi > 1) {
            Attendi(Domanda("Interrompere ?"));
        }
        m_bFiltra = AttendiCorsa(true);
        m_bValide = m_bValide && !utente.bSi;
        Numeri(1, 7);
    }

    void PremiTutto()
    {
        for (const PulsanteStrumento& pulsante : Controlli().Toolbar2.aPulsanti) {
            Premi(pulsante.sChiave);
            for (const VoceMenu& voce : pulsante.aMenu) {
                Voce(voce.sChiave);
            }
        }
        EXPECT_TRUE(utente.aMostrati.empty());
    }

    void Filtra()
    {
        const bool bColonne = FileDiLavoro() && std::filesystem::file_size(sistema.FileColonne()) > 0;
        Premi("FiltraSvilPrec");
        AttendiCorsa(bColonne);
    }

    void FiltraFile()
    {
        Voce("FiltraFileCol");
        if (!utente.sFile.empty() && std::filesystem::exists(utente.sFile)) {
            const auto nByte = static_cast<double>(std::filesystem::file_size(utente.sFile));
            m_sIntegrale = FormattaNumero(nByte / 20);
            m_sNumSel = "File";
            AttendiCorsa(nByte > 0);
        }
    }

    // ---- files ----

    void Salva()
    {
        Premi("Save");
        EXPECT_EQ(utente.nBeep, std::filesystem::exists(m_sNome) ? 0 : 1);
        m_bModificato = m_bModificato && !std::filesystem::exists(m_sNome);
    }

    void SalvaConNome()
    {
        const bool bNome = utente.UnaVoltaSu(2);
        Voce(bNome ? "SalvaConNome" : "Salva");
        m_sNome = bNome || m_sNome.empty() ? utente.sFile : m_sNome;
        m_bModificato = m_bModificato && m_sNome.empty();
        if (m_sNome == m_Cartella / "corto.sic") {
            prove::ScriviFile(m_sNome, std::string(316, '\0')); // and stays one that cannot be opened
        }
    }

    void Apri()
    {
        Premi("Open");
        if (!Perdita() || utente.sFile.empty()) {
            return;
        }
        m_sNome = utente.sFile;
        PulisciEtichette();
        if (!std::filesystem::exists(m_sNome)) {
            return Attendi(prove::Fallimento("OrdavelSis.Apri", Errore(eErrore::fileNonTrovato, m_sNome)));
        }
        if (std::filesystem::file_size(m_sNome) == 316) {
            return Attendi(Avviso("Il sistema scelto è salvato in formato non più supportato"));
        }
        m_bModificato = false;
        m_bVoceSalva = true;
        ContaNumeri();
    }

    void Nuovo()
    {
        Premi("New");
        if (Perdita()) {
            PulisciEtichette();
            m_bVoceSalva = false;
            m_sNome.clear();
            m_Ultimo = TipoCondizione::nessuno;
            EXPECT_EQ(Ultima(), 0);
            EXPECT_FALSE(FileDiLavoro());
        }
    }

    void SalvaColonne()
    {
        if (FileDiLavoro()) {
            Voce(utente.UnaVoltaSu(2) ? "SalvaColonne" : "SalvaColonneTesto");
            ScriviTesti(); // a text of thousands of columns is not for the list of conditions
        }
    }

    // ---- what changes nothing ----

    void Naviga()
    {
        Premi("Naviga");
        m_bNaviga = true;
        AttendiAlbero();
    }

    void Stampa()
    {
        Premi("StampaSk");
        EXPECT_EQ(m_nEventi, FileDiLavoro() ? 1 : 0);
    }

    void StopDaFermo()
    {
        Premi("Stop");
        Attendi(Domanda("Interrompere ?"));
    }

    void Guarda()
    {
        constexpr std::string_view kChiavi[]{"VisualizzaColonne", "IncrGrid", "DecrGrid", "puntimassivi",
                                             "Pulisci"};
        Premi(kChiavi[utente.Tra(0, 4)]);
    }

    void SalvaCondizioni() { Voce("SalvaCondizioni"); }

    // ---- the walk ----

    using Passo = std::pair<std::string_view, void (OrdavelPasseggiata::*)()>;
    static const std::vector<Passo>& Passi();

    void Fai(const Passo& passo)
    {
        Prepara();
        EXPECT_NO_THROW((this->*passo.second)());
        Controlla();
    }
};

/// All steps, the frequent ones more than once.
const std::vector<OrdavelPasseggiata::Passo>& OrdavelPasseggiata::Passi()
{
    using P = OrdavelPasseggiata;
    static const std::vector<Passo> aPassi{
        {"Inserisci", &P::Inserisci},
        {"Inserisci", &P::Inserisci},
        {"DaMenu", &P::DaMenu},
        {"DaMenu", &P::DaMenu},
        {"DaMenu", &P::DaMenu},
        {"Ripeti", &P::Ripeti},
        {"ApriLink", &P::ApriLink},
        {"ChiudiLink", &P::ChiudiLink},
        {"ChiudiLink", &P::ChiudiLink},
        {"Modifica", &P::Modifica},
        {"Modifica", &P::Modifica},
        {"Elimina", &P::Elimina},
        {"Elimina", &P::Elimina},
        {"EliminaTratto", &P::EliminaTratto},
        {"ApriRiga", &P::ApriRiga},
        {"ScegliRiga", &P::ScegliRiga},
        {"ScegliRiga", &P::ScegliRiga},
        {"Quadro", &P::Quadro},
        {"DaFile", &P::DaFile},
        {"UnNumero", &P::UnNumero},
        {"UnNumero", &P::UnNumero},
        {"ChiudiSelettore", &P::ChiudiSelettore},
        {"Classe", &P::Classe},
        {"Gioco", &P::Gioco},
        {"Riduci", &P::Riduci},
        {"Sviluppa", &P::Sviluppa},
        {"Sviluppa", &P::Sviluppa},
        {"SviluppaEFerma", &P::SviluppaEFerma},
        {"Filtra", &P::Filtra},
        {"FiltraFile", &P::FiltraFile},
        {"Salva", &P::Salva},
        {"SalvaConNome", &P::SalvaConNome},
        {"SalvaConNome", &P::SalvaConNome},
        {"Apri", &P::Apri},
        {"Nuovo", &P::Nuovo},
        {"SalvaColonne", &P::SalvaColonne},
        {"Naviga", &P::Naviga},
        {"Stampa", &P::Stampa},
        {"StopDaFermo", &P::StopDaFermo},
        {"Guarda", &P::Guarda},
        {"SalvaCondizioni", &P::SalvaCondizioni},
    };
    return aPassi;
}

TEST_P(OrdavelPasseggiata, DopoOgniPassoTuttoTorna)
{
    const int nUltimo = static_cast<int>(Passi().size()) - 1;
    for (int nPasso = 1; nPasso <= kPassi && !HasFailure(); ++nPasso) {
        const Passo& passo = Passi()[static_cast<std::size_t>(utente.Tra(0, nUltimo))];
        SCOPED_TRACE("seme " + std::to_string(GetParam().nSeme) + ", passo " + std::to_string(nPasso) + ": " +
                     std::string(passo.first));
        Fai(passo);
    }
}

INSTANTIATE_TEST_SUITE_P(Semi, OrdavelPasseggiata,
                         testing::Values(Partenza{1, 0}, Partenza{2, 0}, Partenza{3, 4}, Partenza{4, 12},
                                         Partenza{5, 0}, Partenza{6, 5}, Partenza{7, 1990}, Partenza{8, 2000},
                                         Partenza{9, 1}, Partenza{1045, 2000}),
                         [](const auto& caso) { return "Seme" + std::to_string(caso.param.nSeme); });

} // namespace
} // namespace ordavel
