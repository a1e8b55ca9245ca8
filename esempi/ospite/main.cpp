// main.cpp - a host application at its smallest: it states a system, develops it and listens to the component.

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <ordavel/Ordavel.hpp>
#include <string>

namespace {

/// A desktop of one terminal: boxes are printed, questions are answered with yes, dialogs are not confirmed.
class Terminale : public ordavel::Piattaforma {
public:
    ordavel::eRisposta MostraMessaggio(const ordavel::Messaggio& messaggio) override
    {
        std::cout << "[" << messaggio.sTitolo << "] " << messaggio.sTesto << '\n';
        return messaggio.pulsanti == ordavel::ePulsanti::siNo ? ordavel::eRisposta::si
                                                              : ordavel::eRisposta::ok;
    }
    std::string DialogoApri(const ordavel::RichiestaFile&) override { return {}; }
    std::string DialogoSalva(const ordavel::RichiestaFile&) override { return sSalva; }
    std::string ScegliCartella(const std::string&) override { return {}; }
    void MostraModale(ordavel::Dialogo&) override {}
    void LasciaEventi() override {}
    void PuntatoreOccupato(bool) override {}
    float SecondiDaMezzanotte() override { return 0; }

    std::string sSalva; ///< what the next save dialog answers
};

} // namespace

int main()
{
    const std::string sCartella = (std::filesystem::temp_directory_path() / "ordavel-ospite").string();
    Terminale terminale;
    ordavel::Ordavel sistema(terminale);
    sistema.Eventi().StampaSk = [](std::string& sGioco) { std::cout << "stampa per " << sGioco << '\n'; };
    sistema.PoniPercorsoTemp(sCartella);
    sistema.PoniClasse(5);
    for (std::int16_t n = 1; n <= 10; ++n) {
        sistema.SelezionaNumero(n, true);
    }
    sistema.InsCondizione(ordavel::TipoCondizione::pariDispari, "Pari\r\n2,3");
    sistema.InsCondizione(ordavel::TipoCondizione::consecutivi, "0,1");
    sistema.GestSviluppo();
    std::cout << sistema.QuantitaColonne() << " colonne; la prima " << sistema.GetColonnaSviluppo(1) << '\n';
    sistema.Toolbar2_ButtonClick("StampaSk");
    terminale.sSalva = sCartella + "/colonne.txt";
    const bool bScritte = sistema.SalvaFileColonneTesto();
    sistema.Deinit();
    std::filesystem::remove_all(sCartella);
    return bScritte ? EXIT_SUCCESS : EXIT_FAILURE;
}
