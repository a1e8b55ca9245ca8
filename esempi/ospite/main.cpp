// main.cpp - a host application at its smallest: a failure of the library, and its text.

#include "ordavel/errore.hpp"

#include <iostream>

int main()
{
    try {
        ordavel::Solleva(ordavel::eErrore::fileNonTrovato);
    } catch (const ordavel::Errore& errore) {
        std::cout << ordavel::TestoFallimento(errore) << '\n';
    }
    return 0;
}
