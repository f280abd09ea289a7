// A real box on USB, spoken to by HID reports.
#pragma once

#include "canal.h"

namespace tessarel {

class CanalUsb {
public:
    CanalUsb() = default;
    ~CanalUsb();
    CanalUsb(const CanalUsb&) = delete;
    CanalUsb& operator=(const CanalUsb&) = delete;

    // True when a box is plugged in and no other program of the user holds it.
    bool Presente();
    std::int32_t Ouvrir();
    void Fermer();
    // The report goes out and the reply takes its place; untouched after a failure. A box that was plugged
    // out and in again since the last exchange is found again.
    std::int32_t Echanger(Rapport& rapport);

private:
    bool Verrouiller();
    bool Vider(std::chrono::milliseconds silence);
    std::int32_t Recevoir(Rapport& rapport);

    int m_verrou = -1;          // held from the first look at the device until it is closed
    void* m_appareil = nullptr; // hid_device of the library, which only the source knows
    bool m_reponseDue = false;  // the last exchange got no reply: it may still come
};

} // namespace tessarel
