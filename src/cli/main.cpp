// main.cpp - where the program begins.

#include "cli/Programma.hpp"

int main(int nArgomenti, char** aArgomenti)
{
    return ordavel::cli::Esegui(nArgomenti, aArgomenti);
}
