// The run-time faults of the program: one family, so that the crash handling can take them all.
#pragma once

#include "platform/raisons.h"

#include <stdexcept>
#include <string>

namespace tessarel {

// Numbers under which faults are reported; they are those that users of the program know from its error
// boxes.
enum class NumeroErreur : int {
    Depassement = 6,
    IndiceHorsBornes = 9,
    DivisionParZero = 11,
    ConversionImpossible = 13,
    ErreurInterne = 51,
    FichierIntrouvable = 53,
    EcritureImpossible = 57,
    AccesRefuse = 75,
};

// Base of all faults. `what()` is the description shown to the user, in the language in use where it is a
// sentence of the tables, else in plain French.
class Faute : public std::runtime_error {
public:
    Faute(NumeroErreur numero, const std::string& description)
        : std::runtime_error(description), m_numero(numero) {}
    [[nodiscard]] NumeroErreur Numero() const { return m_numero; }

private:
    NumeroErreur m_numero;
};

// A value that does not fit the width that holds it (a 16-bit counter, a step count).
class FauteDepassement : public Faute {
public:
    explicit FauteDepassement(const std::string& description)
        : Faute(NumeroErreur::Depassement, description) {}
};

// A text that is no number where a number was needed.
class FauteConversion : public Faute {
public:
    explicit FauteConversion(const std::string& description)
        : Faute(NumeroErreur::ConversionImpossible, description) {}
};

// A file that is absent, unreadable or not writable; the description names the file and the reason.
class FauteFichier : public Faute {
public:
    FauteFichier(NumeroErreur numero, const std::string& chemin, const std::string& raison)
        : Faute(numero, chemin + SelonLangue(" : ", ": ") + raison), m_chemin(chemin) {}
    [[nodiscard]] const std::string& Chemin() const { return m_chemin; }

private:
    std::string m_chemin;
};

// A file whose content is not what its kind asks for. `ligne` counts from 1; 0 where no line is to blame.
class FauteLecture : public Faute {
public:
    FauteLecture(const std::string& chemin, long ligne, const std::string& raison)
        : Faute(NumeroErreur::ConversionImpossible,
                chemin + (ligne > 0 ? SelonLangue(", ligne ", ", line ") + std::to_string(ligne) : "") +
                    SelonLangue(" : ", ": ") + raison),
          m_chemin(chemin), m_ligne(ligne) {}
    [[nodiscard]] const std::string& Chemin() const { return m_chemin; }
    [[nodiscard]] long Ligne() const { return m_ligne; }

private:
    std::string m_chemin;
    long m_ligne;
};

// An invariant of the program found broken: a sentence, and the end of the run in the crash handling.
class FauteInterne : public Faute {
public:
    explicit FauteInterne(const std::string& description) : Faute(NumeroErreur::ErreurInterne, description) {}
};

} // namespace tessarel
