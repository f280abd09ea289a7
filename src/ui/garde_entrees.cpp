// The filter of all input: guards, late clicks, and double clicks astride a change of command.
#include "ui/garde_entrees.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <utility>

namespace tessarel {

namespace {

struct Garde {
    std::vector<const QWidget*> permis;
    std::function<void()> arreter;
};

class FiltreEntrees : public QObject {
public:
    static FiltreEntrees& Celui() {
        static QPointer<FiltreEntrees> filtre;
        if (filtre == nullptr) {
            filtre = new FiltreEntrees;
            filtre->setParent(qApp);
            qApp->installEventFilter(filtre);
        }
        return *filtre;
    }

    void Entrer(Garde garde) {
        gardes.push_back(std::move(garde));
        ++ere;
    }
    void Sortir() {
        gardes.pop_back();
        ++ere;
    }

    bool eventFilter(QObject* objet, QEvent* evenement) override;

    int ecartes = 0; // lives of ClicsEcartes

private:
    [[nodiscard]] bool Ferme(const QObject* objet) const;
    [[nodiscard]] bool HorsDePortee(const QAbstractButton& bouton) const;
    bool ClicTardif(QObject* objet, QEvent& evenement);
    bool Appui(QObject* objet, bool second);
    bool Touche(QObject* objet, QKeyEvent& touche);

    std::vector<Garde> gardes; // the last one counts
    int ere = 0;               // a number for each time between two changes of command
    int ereAppui = 0;          // in which the mouse was last pressed
    QPointer<QObject> appuye;  // and what it pressed
};

// The window's own widget, or the one a shortcut belongs to.
const QWidget* ControleDe(const QObject* objet) {
    for (; objet != nullptr; objet = objet->parent())
        if (objet->isWidgetType()) return static_cast<const QWidget*>(objet);
    return nullptr;
}

bool DansUneBoite(const QWidget& controle) {
    return qobject_cast<const QMessageBox*>(controle.window()) != nullptr;
}

// True for what a guard keeps from `objet`. Windows of the system below the controls only pass things on.
bool FiltreEntrees::Ferme(const QObject* objet) const {
    if (gardes.empty() || objet->isWindowType()) return false;
    const QWidget* controle = ControleDe(objet);
    if (controle == nullptr || DansUneBoite(*controle)) return false;
    for (const QWidget* permis : gardes.back().permis)
        if (permis == controle || permis->isAncestorOf(controle)) return false;
    return true;
}

bool FiltreEntrees::HorsDePortee(const QAbstractButton& bouton) const {
    if (ecartes > 0 || !bouton.isEnabled() || !bouton.isVisible() || Ferme(&bouton)) return true;
    for (const QWidget* devant : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
        if (devant != nullptr && devant != bouton.window()) return true;
    return false;
}

// The key of a button presses it, and clicks it a tenth of a second later whatever has become of it. Out of
// reach it comes up again without a word; but an Escape that was meant for another button stops as well.
bool FiltreEntrees::ClicTardif(QObject* objet, QEvent& evenement) {
    auto* bouton = qobject_cast<QAbstractButton*>(objet);
    if (bouton == nullptr || !HorsDePortee(*bouton)) return false;
    const QSignalBlocker muet(bouton);
    const bool coche = bouton->isChecked();
    objet->event(&evenement);
    bouton->setChecked(coche);
    if (!gardes.empty() && bouton->shortcut() == QKeySequence(Qt::Key_Escape)) gardes.back().arreter();
    return true;
}

// The second press of a double click does not count where the first one has started or ended a command and
// another control has come to stand under the pointer: nobody has aimed at that.
bool FiltreEntrees::Appui(QObject* objet, bool second) {
    if (!objet->isWidgetType()) return false;
    const auto* controle = static_cast<const QWidget*>(objet);
    if (second && ereAppui != ere) {
        const auto* premier = static_cast<const QWidget*>(appuye.data());
        const bool leMeme = premier != nullptr && (premier == controle || premier->isAncestorOf(controle) ||
                                                   controle->isAncestorOf(premier));
        if (!leMeme) return true;
    }
    if (!second) {
        ereAppui = ere;
        appuye = objet;
    }
    return Ferme(objet);
}

// A key that is still held after it has done its deed: it would answer the box that this deed has opened.
bool Repete(const QKeyEvent& touche) {
    switch (touche.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return touche.type() == QEvent::KeyPress && touche.isAutoRepeat();
    default:
        return false;
    }
}

bool FiltreEntrees::Touche(QObject* objet, QKeyEvent& touche) {
    if (gardes.empty() || !objet->isWidgetType()) return false;
    if (Repete(touche)) return true;
    if (DansUneBoite(*static_cast<const QWidget*>(objet))) return false;
    if (touche.key() == Qt::Key_Escape && touche.modifiers() == Qt::NoModifier) {
        touche.accept(); // no shortcut takes it
        if (touche.type() == QEvent::KeyPress) gardes.back().arreter();
        return true;
    }
    const bool versAutre = touche.key() == Qt::Key_Tab || touche.key() == Qt::Key_Backtab;
    return touche.type() == QEvent::KeyPress && !versAutre && Ferme(objet);
}

bool FiltreEntrees::eventFilter(QObject* objet, QEvent* evenement) {
    switch (evenement->type()) {
    case QEvent::Timer:
        return ClicTardif(objet, *evenement);
    case QEvent::MouseButtonPress:
        return Appui(objet, false);
    case QEvent::MouseButtonDblClick:
        return Appui(objet, true);
    case QEvent::ContextMenu:
        // Every one is a loop of its own, also over what is open.
        return !gardes.empty() && objet->isWidgetType();
    case QEvent::MouseMove:
        // A drag begins with a move; the pointer alone may pass.
        return static_cast<QMouseEvent*>(evenement)->buttons() != Qt::NoButton && Ferme(objet);
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (gardes.empty() || !objet->isWidgetType()) return false;
        evenement->ignore();
        return true;
    case QEvent::Wheel:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return Ferme(objet);
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return Touche(objet, *static_cast<QKeyEvent*>(evenement));
    default:
        return false;
    }
}

} // namespace

GardeEntrees::GardeEntrees(std::vector<const QWidget*> permis, std::function<void()> arreter) {
    // One that is open would keep mouse and keys to itself.
    while (QWidget* menu = QApplication::activePopupWidget())
        if (!menu->close()) break;
    FiltreEntrees::Celui().Entrer({std::move(permis), std::move(arreter)});
}

GardeEntrees::~GardeEntrees() {
    FiltreEntrees::Celui().Sortir();
}

ClicsEcartes::ClicsEcartes() {
    ++FiltreEntrees::Celui().ecartes;
}

ClicsEcartes::~ClicsEcartes() {
    --FiltreEntrees::Celui().ecartes;
}

void InstallerFiltreEntrees() {
    FiltreEntrees::Celui();
}

} // namespace tessarel
