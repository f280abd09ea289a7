// Run-time faults of the 4-axis cut with the name of the procedure that the crash report tells.
#pragma once

#include "platform/erreurs.h"

#include <string>

namespace tessarel {

// What leaves CalculerDecoupeD4X and its offsets when they break down.
class FauteProcedureD4X : public Faute {
public:
    FauteProcedureD4X(NumeroErreur numero, const std::string& description, std::string procedure)
        : Faute(numero, description), m_procedure(std::move(procedure)) {}
    [[nodiscard]] const std::string& Procedure() const { return m_procedure; }

private:
    std::string m_procedure;
};

} // namespace tessarel
