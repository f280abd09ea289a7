// Long work in a thread of its own under a window that can cancel it.
#include "ui/en_arriere.h"

#include "app/texts/textes_programme.h"
#include "ui/attente.h"
#include "ui/boites_qt.h"
#include "ui/garde_entrees.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <chrono>
#include <future>
#include <utility>
#include <vector>

namespace tessarel {

namespace {

constexpr int DelaiAnnonce = 300; // ms
constexpr std::chrono::milliseconds PasAttente{10};

// Work that the user gave up still runs to its end; the program's own end waits for it.
void Abandonner(std::future<void> travail) {
    static std::vector<std::future<void>> abandonnes;
    std::erase_if(abandonnes, [](const std::future<void>& ancien) {
        return ancien.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
    abandonnes.push_back(std::move(travail));
}

} // namespace

bool FaireEnArriere(QWidget& fenetre, const std::string& quoi, std::function<void()> travail) {
    const ClicsEcartes sansAutreCommande; // their timers run on below
    std::future<void> fin = std::async(std::launch::async, std::move(travail));
    // Most work is over before anything needs to be said.
    {
        const Attente attente;
        if (fin.wait_for(PasAttente * 4) == std::future_status::ready) {
            fin.get();
            return true;
        }
    }
    QProgressDialog annonce(TexteAffiche(quoi), TexteAffiche(Texte(TexteProgramme::BoutonAnnuler)), 0, 0,
                            &fenetre);
    annonce.setObjectName(QStringLiteral("annonceTravail"));
    annonce.setWindowModality(Qt::ApplicationModal);
    annonce.setMinimumDuration(DelaiAnnonce);
    annonce.setValue(0);
    while (fin.wait_for(PasAttente) != std::future_status::ready) {
        QCoreApplication::processEvents(annonce.isVisible() ? QEventLoop::AllEvents
                                                            : QEventLoop::ExcludeUserInputEvents);
        if (annonce.wasCanceled()) {
            Abandonner(std::move(fin));
            return false;
        }
    }
    fin.get();
    return true;
}

} // namespace tessarel
