// A flag that is up while something runs, whatever way it ends.
#pragma once

namespace tessarel {

class Drapeau {
public:
    explicit Drapeau(bool& drapeau) : m_drapeau(drapeau) { m_drapeau = true; }
    ~Drapeau() { m_drapeau = false; }
    Drapeau(const Drapeau&) = delete;
    Drapeau& operator=(const Drapeau&) = delete;

private:
    bool& m_drapeau;
};

} // namespace tessarel
