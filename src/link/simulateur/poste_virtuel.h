// A virtual box on the desk: the engine plugged into its socket, its memories in their file, its log.
#pragma once

#include "link/simulateur/boite.h"
#include "machine/table_machine.h"
#include "platform/prise_zelko.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarel::simulateur {

struct OptionsPoste {
    std::string prise;           // path of the socket
    std::string fichierMemoires; // empty: memories live and die with the program
    std::string fichierJournal;  // empty: no log; a log is begun anew
    double facteur = 1;
    std::size_t capaciteFile = CapaciteFileUsuelle;
    std::string machine;           // that stands on the desk; empty: the one whose table is in RAM
    std::optional<double> courseX; // mm, in place of the machine's
    std::optional<double> courseY;
    std::vector<PanneProgrammee> pannes;
    // Finds a machine by name; the name of a memory may be the first 8 characters of it. False: unknown.
    std::function<bool(const std::string& nom, TableMachine& table)> chercherMachine;
    std::function<void(const std::string& texte)> avertir; // of what went wrong on the way, in words
};

// Owns all of it, and removes its socket at the end. Without a file of memories, memory 0 holds `machine`, or
// "(Defaut)": a newcomer's program finds its table.
class PosteVirtuel {
public:
    // FauteFichier, FauteLecture, FauteConversion with what prevents it.
    explicit PosteVirtuel(OptionsPoste options);
    ~PosteVirtuel();
    PosteVirtuel(const PosteVirtuel&) = delete;
    PosteVirtuel& operator=(const PosteVirtuel&) = delete;

    // Waits at most so long for an exchange and does what there is to do. Called again and again. True
    // when there was one.
    bool Servir(std::chrono::milliseconds attente);
    [[nodiscard]] BoiteZelko& Boite() { return m_boite; }
    [[nodiscard]] PriseZelko& Prise() { return *m_prise; }
    // Hears every note beside the log.
    std::function<void(const NoteJournal&)> SurNote;

    // "prêt sur ...": the line that a program prints when it can be used.
    [[nodiscard]] std::string PhrasePrete() const;

private:
    void PreparerMemoires();
    void AjouterMachine(const std::string& nom);
    void SauverMemoires();
    void SuivreTable();
    void SuivreBranchement();
    void OuvrirJournal();
    void NoterJournal(const NoteJournal& note);
    void ViderJournal();
    ReponsePrise Traiter(const Tampon& commande);

    OptionsPoste m_options;
    BoiteZelko m_boite;
    std::unique_ptr<PriseZelko> m_prise;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_journal;
    std::string m_lignes; // not yet written
    Instant m_dernierVidage{0};
    bool m_priseRefusee = false; // told already
};

} // namespace tessarel::simulateur
