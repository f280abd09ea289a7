// What the command lines of the programs share: words looked at before they are parsed, values, help and
// refusals in the language in use.
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <string_view>

namespace tessarel {

// Value of an option in words not yet parsed, "--nom valeur" or "--nom=valeur", for what help and refusals
// must know already; empty when absent.
std::string ValeurBrute(int argc, char** argv, std::string_view nom);

// The parser's own words of a help. Called before any option or verb is declared: they take them over.
void PreparerAide(CLI::App& programme);
void AjouterOptionAide(CLI::App& programme);
void AjouterOptionVersion(CLI::App& programme, const std::string& nomProgramme);

// A number, comma or point as its mark, between two bounds told by the refusal. For `transform`: the parser
// reads the number with a point.
CLI::Validator Entre(double min, double max, bool entier = false);
CLI::Validator UnNombre();

// Why the words were refused: the parser's own sentences are in English.
std::string RaisonUsage(const CLI::App& programme, const CLI::ParseError& erreur);

} // namespace tessarel
