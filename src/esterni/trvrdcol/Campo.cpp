// Campo.cpp - arithmetic by tables of powers.
//
// An element is a polynomial of degree below e over the numbers modulo p, written as a number in base p: its digits are
// the coefficients. The field comes out of a monic polynomial of degree e modulo which the powers of some element run
// through all others than 0; with so few elements it is found by trying.

#include "Campo.hpp"

namespace ordavel::trvrdcol {

namespace {

unsigned PrimoDivisore(unsigned n)
{
    unsigned p = 2;
    while (n % p != 0) {
        ++p;
    }
    return p;
}

/// nA + nVolte * nB, digit by digit in base p, modulo p.
unsigned SommaCifre(unsigned nA, unsigned nB, unsigned nVolte, unsigned p)
{
    unsigned nSomma = 0;
    for (unsigned nPeso = 1; nA > 0 || nB > 0; nPeso *= p, nA /= p, nB /= p) {
        nSomma += nPeso * ((nA % p + nVolte * (nB % p)) % p);
    }
    return nSomma;
}

} // namespace

bool Campo::Esiste(unsigned nQ)
{
    if (nQ < 2) {
        return false;
    }
    const unsigned p = PrimoDivisore(nQ);
    while (nQ % p == 0) {
        nQ /= p;
    }
    return nQ == 1;
}

/// Fills the tables with the powers of x modulo x^e + nPolinomio; for e = 1 that is modulo a number, and the
/// generating element is p - nPolinomio.
/// Gives    false when they do not run through all elements
bool Campo::Genera(unsigned nPolinomio)
{
    m_aPotenze.clear();
    m_aEsponenti.assign(m_nQ, 0);
    const unsigned nAlto = m_nQ / m_nP; // x^(e-1)
    unsigned nElemento = 1;
    do {
        m_aEsponenti[nElemento] = static_cast<unsigned>(m_aPotenze.size());
        m_aPotenze.push_back(nElemento);
        const unsigned nCoefficiente = nElemento / nAlto;
        const unsigned nSpostato = nElemento % nAlto * m_nP;
        nElemento = SommaCifre(nSpostato, nPolinomio, m_nP - nCoefficiente, m_nP);
    } while (nElemento > 1 && m_aPotenze.size() < m_nQ);
    return nElemento == 1 && m_aPotenze.size() == m_nQ - 1;
}

Campo::Campo(unsigned nQ) : m_nQ(nQ), m_nP(PrimoDivisore(nQ))
{
    for (unsigned n = nQ; n > 1; n /= m_nP) {
        ++m_nE;
    }
    unsigned nPolinomio = 1;
    while (!Genera(nPolinomio)) {
        ++nPolinomio;
    }
}

unsigned Campo::Somma(unsigned nA, unsigned nB) const noexcept
{
    return SommaCifre(nA, nB, 1, m_nP);
}

unsigned Campo::Opposto(unsigned nA) const noexcept
{
    return SommaCifre(0, nA, m_nP - 1, m_nP);
}

unsigned Campo::Prodotto(unsigned nA, unsigned nB) const noexcept
{
    return nA == 0 || nB == 0 ? 0 : Potenza(m_aEsponenti[nA] + m_aEsponenti[nB]);
}

} // namespace ordavel::trvrdcol
