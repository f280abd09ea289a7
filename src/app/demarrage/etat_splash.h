// What the splash shows of the interface box, found out once at start-up.
#pragma once

#include "machine/table_machine.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace tessarel {

enum class CouleurLibelle { Ordinaire, Rouge, Verte };

struct LibelleEtat {
    std::string Texte;
    CouleurLibelle Couleur = CouleurLibelle::Ordinaire;
    bool Visible = false;
};

inline constexpr int NombreMemoiresZelko = 3;

// One of the check boxes of the memories, with its marker.
struct MemoireAffichee {
    std::string Nom;
    bool Visible = false;
    bool Cochee = false;     // holds the name of the current machine; its marker shows
    bool Differente = false; // the marker is the one for other parameters
};

struct EtatSplash {
    std::string NomMachine;     // chkDerniereMachine
    LibelleEtat Detection;      // lblDetectionInterface
    LibelleEtat Correspondance; // lblPasDeCorrespondance
    bool NomsVisibles = false;  // lblNomMachinesMemoire
    std::array<MemoireAffichee, NombreMemoiresZelko> Memoires;
    bool Mouvements = false;
};

// How the memories of the box are reached; empty functions: not at all, and they are passed over.
struct AccesMemoires {
    std::function<void(int memoire, TableMachine& table)> Lire;
    std::function<std::int32_t(int memoire)> ChargerEnRam; // result of the exchange, 1 for success
};

// The memories as the link reaches them; what is read stays in MemoiresZelko.
AccesMemoires MemoiresDuLien();

// Tests the interface against TableINI and tells what the splash shows. Sets InterfaceConnectee and
// DernierResultatZelko, and NumeroMemoire of TableINI where a memory agrees; never changes a memory. A box
// that runs or heats already is asked about first (ControlerMachine); where it is left so, its memories are
// not read.
EtatSplash AffichageSplashEtTestsZelko(const AccesMemoires& acces);

} // namespace tessarel
