// LibreriaSviluppo_prova.cpp - the binding of the external engine, to a played library beside the tests.

#include "motore/LibreriaSviluppo.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace ordavel {
namespace {

using prove::LeggiFile;

class LibreriaSviluppoProva : public testing::Test {
protected:
    LibreriaSviluppoProva()
    {
        std::string sSistema(317, '\0');
        sSistema[7] = 3;
        for (const std::size_t n : {5U, 6U, 7U, 8U}) {
            sSistema[11 + 2 * (n - 1)] = '\xFF';
        }
        prove::ScriviFile(m_sSistema, sSistema);
        setenv("ORDAVEL_FINTO_REGISTRO", (m_Cartella / "registro.txt").c_str(), 1);
        Gioca("");
    }

    static void Gioca(const char* sModo) { setenv("ORDAVEL_FINTO", sModo, 1); }

    void Sviluppa(const std::function<void()>& eventi)
    {
        m_Libreria.InitSviluppo(m_sPercorso, m_sSistema, m_sEmulatore, eventi);
    }

    prove::CartellaProva m_Cartella;
    const std::string m_sPercorso = m_Cartella / "";
    const std::string m_sSistema = m_Cartella / "Sviluppo.sic";
    const std::string m_sEmulatore = "-";
    LibreriaSviluppo m_Libreria;
};

TEST_F(LibreriaSviluppoProva, CiSonoTutteLeFunzioni)
{
    EXPECT_EQ(prove::NumeroErrore([&] { m_Libreria.Controlla(); }), std::nullopt);
}

TEST_F(LibreriaSviluppoProva, ITestiArrivanoEQuelliDelChiamanteRestano)
{
    int nEventi = 0;
    Sviluppa([&] { ++nEventi; });
    EXPECT_GE(nEventi, 1);
    EXPECT_EQ(LeggiFile(m_Cartella / "registro.txt"), m_sPercorso + "\n" + m_sSistema + "\n-\n");
    EXPECT_EQ(m_sSistema, m_Cartella / "Sviluppo.sic");
    EXPECT_EQ(m_sEmulatore, "-");
    EXPECT_EQ(LeggiFile(m_Cartella / "Sviluppo.col").size(), 40U);
    EXPECT_EQ(m_Libreria.GetSviluppate(), 20);
    EXPECT_EQ(m_Libreria.GetCondizionate(), 2);
}

TEST_F(LibreriaSviluppoProva, GliEventiLaFermanoMentreGira)
{
    Gioca("lento");
    Sviluppa([&] {
        if (m_Libreria.GetSviluppate() == 8) {
            m_Libreria.StopSviluppo();
        }
    });
    EXPECT_EQ(m_Libreria.GetCondizionate(), 1);
}

TEST_F(LibreriaSviluppoProva, CioCheGliEventiSollevanoLaFerma)
{
    Gioca("lento");
    EXPECT_THROW(Sviluppa([&] {
                     if (m_Libreria.GetSviluppate() == 8) {
                         throw std::runtime_error("eventi");
                     }
                 }),
                 std::runtime_error);
    EXPECT_EQ(m_Libreria.GetCondizionate(), 1) << "l'eccezione passa quando la corsa è finita";
}

} // namespace
} // namespace ordavel
