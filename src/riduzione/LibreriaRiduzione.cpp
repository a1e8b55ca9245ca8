// LibreriaRiduzione.cpp - the three functions of trvrdcol.

#include "riduzione/LibreriaRiduzione.hpp"

namespace ordavel {

void LibreriaRiduzione::RiduzioneColonneDll(const std::string& sFileCol, const std::string& sFileRidotto,
                                            std::int32_t nPuntiRichiesti, const std::function<void()>& eventi)
{
    // Texts go by reference to copies that the library may write into, within their length.
    auto* const riduci = m_Libreria.Funzione<void(char**, char**, std::int32_t*)>("RiduzioneColonneDll");
    std::string sIngresso = sFileCol;
    std::string sUscita = sFileRidotto;
    ChiamaConEventi(
        [&] {
            char* pIngresso = sIngresso.data();
            char* pUscita = sUscita.data();
            riduci(&pIngresso, &pUscita, &nPuntiRichiesti);
        },
        eventi);
}

std::int16_t LibreriaRiduzione::GetPercProgRiduzione()
{
    return m_Libreria.Funzione<std::int16_t()>("GetPercProgRiduzione")();
}

void LibreriaRiduzione::StopRiduzioneDll()
{
    m_Libreria.Funzione<void()>("StopRiduzioneDll")();
}

} // namespace ordavel
