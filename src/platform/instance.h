// The single instance of the desktop program: a lock that the system frees when the program ends, however it
// ends.
#pragma once

#include <string>

namespace tessarel {

// The lock file: in the session's run folder, else in the temporary folder under a name of this user.
std::string FichierVerrouInstance();

// Holds the lock while it lives.
class VerrouInstance {
public:
    explicit VerrouInstance(const std::string& fichier = FichierVerrouInstance());
    ~VerrouInstance();
    VerrouInstance(const VerrouInstance&) = delete;
    VerrouInstance& operator=(const VerrouInstance&) = delete;

    // False when another instance holds it. A lock file that can't be made stands for no other instance: the
    // program must start.
    [[nodiscard]] bool Seule() const { return m_seule; }

private:
    int m_fichier = -1;
    bool m_seule = true;
};

} // namespace tessarel
