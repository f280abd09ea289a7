// Ends the program as its user would when the system asks it to: the windows are closed one by one, so that a
// move is stopped and the wire is cold before anything disappears.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <chrono>

namespace tessarel {

// While it lives it looks every `periode` whether a signal asked for the end (EcouterSignauxDeFin must have
// been called). Boxes get the answer that changes nothing, dialogs are closed from the top, then the other
// windows are: their questions about unsaved work are asked once for each signal, and the next one ends the
// program without them.
class GardienDeFin : public QObject {
public:
    explicit GardienDeFin(QObject* parent = nullptr,
                          std::chrono::milliseconds periode = std::chrono::milliseconds(200));

private:
    void Regarder();
    void FermerModale(QWidget& fenetre);
    void FermerFenetres();

    QTimer m_temps;
    QPointer<QWidget> m_demandee; // the dialog that was asked last to close
    int m_regards = 0;            // since then
    int m_signaux = 0;            // for which the windows were asked
};

} // namespace tessarel
