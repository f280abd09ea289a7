// The verbs of the batch program: each declares its words on the command line and gives back what is to be
// done when it is the one chosen.
#pragma once

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace tessarel::lot {

// Exit statuses of the program.
inline constexpr int StatutFait = 0;
inline constexpr int StatutRefuse = 1;
inline constexpr int StatutMauvaisUsage = 2;

// What a verb does; returns an exit status. Faults may be thrown, the caller shows them.
using Action = std::function<int()>;
// Called by the verb that the command line chose.
using ChoisirAction = std::function<void(Action)>;

void DeclarerDecouper(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerSynchroniser(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerNettoyer(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerLisser(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerIntersection(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerConvertir(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerInfo(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerMachines(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerInterface(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerAile(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerOutil(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerIntermediaire(CLI::App& programme, const ChoisirAction& choisir);
void DeclarerMesures(CLI::App& programme, const ChoisirAction& choisir);

// A verb with its help flag, accepting the program's own options after it as well.
CLI::App* AjouterVerbe(CLI::App& programme, const std::string& nom, const std::string& description);

// An option that takes one of several words, French or English, and stores the number of the one given:
// {{"aucun", "none"}, {"gauche", "left"}} stores 0 or 1.
using MotsChoix = std::vector<std::vector<std::string>>;
CLI::Option* AjouterChoix(CLI::App& verbe, const std::string& option, int& valeur, const MotsChoix& mots,
                          const std::string& description);

// Prints what a verb has to say; returns the exit status of it. A reader that has gone away is no failure, a
// full disk is one, told on standard error.
int Imprimer(std::string_view texte);

// A refusal of the command line itself that the parser can't see: words that don't go together.
class MauvaisUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tessarel::lot
