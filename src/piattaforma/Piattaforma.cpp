// Piattaforma.cpp - what a desktop need not bring itself.

#include "ordavel/Piattaforma.hpp"

namespace ordavel {

namespace {

/// A desktop without statistics says so to whoever asks for one.
class SenzaStatistica : public Statistica {
public:
    explicit SenzaStatistica(Piattaforma& piattaforma) : m_Piattaforma(piattaforma) {}

    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t /*nIdStatistica*/, std::int16_t /*nGioco*/) override
    {
        m_Piattaforma.MostraMessaggio({.icona = eIcona::informazione,
                                       .sTitolo = {},
                                       .sTesto = "Statistica non disponibile",
                                       .pulsanti = ePulsanti::ok});
    }

private:
    Piattaforma& m_Piattaforma;
};

} // namespace

Statistica::~Statistica() = default;

std::unique_ptr<Statistica> Piattaforma::CreaStatistica()
{
    return std::make_unique<SenzaStatistica>(*this);
}

void Piattaforma::MostraFallimento(std::string_view sOrigine, const Errore& errore)
{
    MostraMessaggio({.icona = eIcona::critico,
                     .sTitolo = std::string(sOrigine),
                     .sTesto = TestoFallimento(errore),
                     .pulsanti = ePulsanti::ok});
}

} // namespace ordavel
