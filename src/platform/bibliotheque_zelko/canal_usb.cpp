// HID reports through hidapi.
#include "canal_usb.h"

#include "platform/adresse_zelko.h"

#include <fcntl.h>
#include <hidapi.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>

namespace tessarel {

namespace {

// A device can't be told to forget a reply that it owes. It is waited for, this long without a word, before
// the next command, and after the first reply to that command: the last one counts.
constexpr std::chrono::milliseconds SilenceAvant{200};
constexpr std::chrono::milliseconds SilenceApres{50};

constexpr unsigned short Vendeur = TESSAREL_USB_VENDEUR;
constexpr unsigned short Produit = TESSAREL_USB_PRODUIT;

hid_device* Appareil(void* appareil) {
    return static_cast<hid_device*>(appareil);
}

bool EstBranche() {
    hid_device_info* liste = ::hid_enumerate(Vendeur, Produit);
    const bool branche = liste != nullptr;
    ::hid_free_enumeration(liste);
    return branche;
}

} // namespace

CanalUsb::~CanalUsb() {
    Fermer();
    ::hid_exit();
}

// A device can be opened twice, and two programs would then take each other's replies: only one of them gets
// it. Where there is no folder for the lock all go on without it.
bool CanalUsb::Verrouiller() {
    if (m_verrou >= 0) return true;
    const std::string dossier = DossierZelko(true);
    if (dossier.empty()) return true;
    const int fd = ::open((dossier + "/zelko-usb.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                          S_IRUSR | S_IWUSR);
    if (fd < 0) return true;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return false;
    }
    m_verrou = fd;
    return true;
}

bool CanalUsb::Presente() {
    if (EstBranche()) return Verrouiller();
    Fermer();
    return false;
}

void CanalUsb::Fermer() {
    if (m_verrou >= 0) ::close(m_verrou);
    m_verrou = -1;
    if (m_appareil != nullptr) ::hid_close(Appareil(m_appareil));
    m_appareil = nullptr;
}

std::int32_t CanalUsb::Ouvrir() {
    if (m_appareil != nullptr) return CanalSucces;
    if (!EstBranche()) return CanalIntrouvable;
    if (!Verrouiller()) return CanalFerme;
    m_appareil = ::hid_open(Vendeur, Produit, nullptr);
    return m_appareil != nullptr ? CanalSucces : CanalFerme;
}

// Throws away reports until none has come for that long; a reply that was due may be among them. False when
// the device is gone.
bool CanalUsb::Vider(std::chrono::milliseconds silence) {
    constexpr int bavardage = 1000; // one who never stops talking is no box
    Rapport rebut;
    for (int i = 0; i < bavardage; ++i) {
        const int attente = m_reponseDue ? static_cast<int>(silence.count()) : 0;
        const int n = ::hid_read_timeout(Appareil(m_appareil), rebut.data(), rebut.size(), attente);
        if (n <= 0) return n == 0;
        m_reponseDue = false;
    }
    return false;
}

std::int32_t CanalUsb::Recevoir(Rapport& rapport) {
    // The report comes without its number, for there is but one.
    constexpr std::size_t utile = TailleRapport - 1;
    std::array<std::uint8_t, TailleRapport> reponse{};
    const Horodatage fin = std::chrono::steady_clock::now() + DelaiReponse;
    int n = ::hid_read_timeout(Appareil(m_appareil), reponse.data(), reponse.size(),
                               static_cast<int>(DelaiReponse.count()));
    while (m_reponseDue && n > 0) {
        std::array<std::uint8_t, TailleRapport> suivante{};
        const int m =
            ::hid_read_timeout(Appareil(m_appareil), suivante.data(), suivante.size(),
                               std::min(MillisecondesJusqua(fin), static_cast<int>(SilenceApres.count())));
        if (m == 0) break;
        n = m;
        reponse = suivante;
    }
    m_reponseDue = n == 0;
    if (n < 0) Fermer();
    if (n <= 0) return CanalReception;
    if (static_cast<std::size_t>(n) != utile) return CanalIncoherent;
    std::copy_n(reponse.begin(), utile, rapport.begin() + 1);
    rapport[0] = 0;
    return CanalSucces;
}

std::int32_t CanalUsb::Echanger(Rapport& rapport) {
    // A handle of a box that was plugged out fails once; the box may be back since.
    if (m_appareil != nullptr && !Vider(SilenceAvant)) Fermer();
    const std::int32_t ouverture = Ouvrir();
    if (ouverture != CanalSucces) return ouverture;
    if (::hid_write(Appareil(m_appareil), rapport.data(), rapport.size()) < 0) {
        Fermer();
        return CanalEnvoi;
    }
    return Recevoir(rapport);
}

} // namespace tessarel
