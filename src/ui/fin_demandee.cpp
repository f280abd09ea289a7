// The end of the program asked for by a signal.
#include "ui/fin_demandee.h"

#include "platform/signaux_fin.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tessarel {

namespace {

// A dialog that moves something stops it when it is asked to close, and stays until it stands. Asked again at
// once it would give up a machine that is only slowing down.
constexpr int RegardsEntreDeuxDemandes = 10;

} // namespace

GardienDeFin::GardienDeFin(QObject* parent, std::chrono::milliseconds periode) : QObject(parent) {
    // Queued: what is closed here may ask something in a loop of its own, and the timer must go on meanwhile.
    connect(&m_temps, &QTimer::timeout, this, &GardienDeFin::Regarder, Qt::QueuedConnection);
    m_temps.start(periode);
}

void GardienDeFin::Regarder() {
    if (!FinDemandee()) return;
    const bool demandees = m_signaux > 0;
    if (demandees) {
        // The windows ask what they have to ask; a further signal does not wait for the answer.
        if (SignauxDeFinRecus() > m_signaux) {
            if (auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                FermerModale(*boite);
            QCoreApplication::exit(0);
        }
        return;
    }
    if (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
    } else if (QWidget* modale = QApplication::activeModalWidget()) {
        FermerModale(*modale);
    } else {
        FermerFenetres();
    }
}

void GardienDeFin::FermerModale(QWidget& fenetre) {
    if (auto* boite = qobject_cast<QMessageBox*>(&fenetre)) {
        if (QAbstractButton* sortie = boite->escapeButton())
            sortie->click();
        else
            boite->close();
        return;
    }
    if (m_demandee == &fenetre && ++m_regards < RegardsEntreDeuxDemandes) return;
    m_demandee = &fenetre;
    m_regards = 0;
    fenetre.close();
}

void GardienDeFin::FermerFenetres() {
    m_signaux = SignauxDeFinRecus();
    const QWidgetList fenetres = QApplication::topLevelWidgets();
    for (const QPointer<QWidget>& fenetre : QList<QPointer<QWidget>>(fenetres.begin(), fenetres.end()))
        if (fenetre != nullptr && fenetre->isVisible()) fenetre->close();
}

} // namespace tessarel
