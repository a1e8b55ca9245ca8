// main.cpp - where the desktop program begins.

#include "desktop/Programma.hpp"

int main(int nArgomenti, char** aArgomenti)
{
    return ordavel::desktop::Esegui(nArgomenti, aArgomenti);
}
