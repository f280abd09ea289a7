// The words of a window's controls: one table per window, each row a control with its text in both languages,
// its shortcut and its icon.
#include "ui/libelles.h"

#include "ui/boites_qt.h"
#include "ui/icones.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace tessarel {

namespace {

QObject* Trouver(QWidget& fenetre, const char* nom) {
    if (*nom == '\0') return &fenetre;
    return fenetre.findChild<QObject*>(QString::fromUtf8(nom));
}

const char* TexteDansLangue(const Libelle& libelle, Langue langue) {
    return langue == Langue::English ? libelle.english : libelle.francais;
}

// The property that carries a control's own words, by the kind of control.
const char* ProprieteTexte(const QObject& objet) {
    for (const char* nom : {"text", "title"}) {
        if (qobject_cast<const QLineEdit*>(&objet) != nullptr) return "placeholderText";
        if (objet.metaObject()->indexOfProperty(nom) >= 0) return nom;
    }
    return "windowTitle";
}

void EcrireElements(QObject& objet, const QStringList& elements) {
    if (auto* liste = qobject_cast<QComboBox*>(&objet)) {
        while (liste->count() > elements.size()) liste->removeItem(liste->count() - 1);
        for (int i = 0; i < elements.size(); ++i) {
            if (i < liste->count()) {
                liste->setItemText(i, elements.at(i));
            } else {
                liste->addItem(elements.at(i));
            }
        }
    } else if (auto* onglets = qobject_cast<QTabWidget*>(&objet)) {
        for (int i = 0; i < elements.size() && i < onglets->count(); ++i)
            onglets->setTabText(i, elements.at(i));
    } else if (auto* barre = qobject_cast<QTabBar*>(&objet)) {
        for (int i = 0; i < elements.size() && i < barre->count(); ++i) barre->setTabText(i, elements.at(i));
    } else if (auto* colonne = qobject_cast<QListWidget*>(&objet)) {
        const int choisie = colonne->currentRow();
        colonne->clear();
        colonne->addItems(elements);
        colonne->setCurrentRow(choisie);
    }
}

void EcrireRaccourci(QObject& objet, const char* raccourci) {
    const QKeySequence touches(QString::fromLatin1(raccourci), QKeySequence::PortableText);
    if (auto* action = qobject_cast<QAction*>(&objet)) {
        action->setShortcut(touches);
    } else if (auto* bouton = qobject_cast<QAbstractButton*>(&objet)) {
        bouton->setShortcut(touches);
    }
}

void EcrireIcone(QObject& objet, const char* nom) {
    const QIcon icone = Icone(QString::fromUtf8(nom));
    if (auto* action = qobject_cast<QAction*>(&objet)) {
        action->setIcon(icone);
    } else if (auto* bouton = qobject_cast<QAbstractButton*>(&objet)) {
        bouton->setIcon(icone);
    } else if (auto* menu = qobject_cast<QMenu*>(&objet)) {
        menu->setIcon(icone);
    }
}

QString AvecRaccourci(const QString& bulle, const QObject& objet) {
    QKeySequence touches;
    if (const auto* action = qobject_cast<const QAction*>(&objet)) touches = action->shortcut();
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&objet)) touches = bouton->shortcut();
    if (touches.isEmpty()) return bulle;
    return bulle + QStringLiteral(" (%1)").arg(touches.toString(QKeySequence::NativeText));
}

void AppliquerRangee(QObject& objet, const Libelle& libelle, Langue langue) {
    const QString texte = TexteAffiche(TexteDansLangue(libelle, langue));
    switch (libelle.propriete) {
    case Propriete::Texte:
        objet.setProperty(ProprieteTexte(objet), texte);
        break;
    case Propriete::Detail:
        objet.setProperty("description", texte);
        break;
    case Propriete::Bulle:
        objet.setProperty("toolTip", AvecRaccourci(texte, objet));
        break;
    case Propriete::Etat:
        objet.setProperty("statusTip", texte);
        break;
    case Propriete::Titre:
        objet.setProperty("windowTitle", texte);
        break;
    case Propriete::Elements:
        EcrireElements(objet, texte.split(u'|'));
        break;
    case Propriete::Variable:
        break;
    }
}

bool NomDuSysteme(const QString& nom) {
    return nom.isEmpty() || nom.startsWith(QStringLiteral("qt_"));
}

// True for what stands inside a control of the window system's own making: its words are not ours.
bool DansUnControleCompose(const QObject& objet) {
    for (const QObject* p = objet.parent(); p != nullptr; p = p->parent()) {
        if (qobject_cast<const QComboBox*>(p) != nullptr || qobject_cast<const QTabBar*>(p) != nullptr)
            return true;
        if (NomDuSysteme(p->objectName()) && p->inherits("QDialogButtonBox")) return true;
    }
    return false;
}

bool MontreDuTexte(const QObject& objet) {
    if (const auto* action = qobject_cast<const QAction*>(&objet)) {
        // The action of a menu in its bar bears the menu's title, which has a row of its own.
        return !action->isSeparator() && action->menu() == nullptr;
    }
    return qobject_cast<const QLabel*>(&objet) != nullptr ||
           qobject_cast<const QAbstractButton*>(&objet) != nullptr ||
           qobject_cast<const QGroupBox*>(&objet) != nullptr ||
           qobject_cast<const QMenu*>(&objet) != nullptr ||
           qobject_cast<const QTabWidget*>(&objet) != nullptr;
}

// A label that only carries a picture, and a tool button that borrows an action's words, show none of their
// own.
bool SansMotsPropres(const QObject& objet) {
    if (const auto* etiquette = qobject_cast<const QLabel*>(&objet)) {
        return etiquette->text().isEmpty() && !etiquette->pixmap(Qt::ReturnByValue).isNull();
    }
    const auto* bouton = qobject_cast<const QToolButton*>(&objet);
    return bouton != nullptr && bouton->defaultAction() != nullptr;
}

void VerifierRangee(QWidget& fenetre, const Libelle& libelle, std::vector<std::string>& defauts) {
    const std::string qui = *libelle.controle == '\0' ? "the window" : libelle.controle;
    if (Trouver(fenetre, libelle.controle) == nullptr) defauts.push_back(qui + ": no such control");
    if (*libelle.icone != '\0' && !NomsIcones().contains(QString::fromUtf8(libelle.icone))) {
        defauts.push_back(qui + ": no icon " + libelle.icone);
    }
    if (libelle.propriete == Propriete::Variable) return;
    const std::string_view francais = libelle.francais;
    const std::string_view english = libelle.english;
    if (francais.empty()) defauts.push_back(qui + ": no French words");
    if (english.empty()) defauts.push_back(qui + ": no English words");
    if (libelle.propriete == Propriete::Elements && std::count(francais.begin(), francais.end(), '|') !=
                                                        std::count(english.begin(), english.end(), '|')) {
        defauts.push_back(qui + ": lists of different lengths");
    }
}

} // namespace

void AppliquerLibelles(QWidget& fenetre, std::span<const Libelle> libelles, Langue langue) {
    // A caption sets a button's shortcut anew, and a tool tip quotes it: captions, shortcuts, then tool tips.
    const auto appliquer = [&](bool bulles) {
        for (const Libelle& libelle : libelles) {
            QObject* objet = Trouver(fenetre, libelle.controle);
            if (objet != nullptr && (libelle.propriete == Propriete::Bulle) == bulles) {
                AppliquerRangee(*objet, libelle, langue);
            }
        }
    };
    appliquer(false);
    for (const Libelle& libelle : libelles) {
        QObject* objet = Trouver(fenetre, libelle.controle);
        if (objet == nullptr) continue;
        if (*libelle.raccourci != '\0') EcrireRaccourci(*objet, libelle.raccourci);
        if (*libelle.icone != '\0') EcrireIcone(*objet, libelle.icone);
    }
    appliquer(true);
}

std::vector<std::string> DefautsLibelles(QWidget& fenetre, std::span<const Libelle> libelles) {
    std::vector<std::string> defauts;
    std::set<std::pair<std::string, Propriete>> vues;
    std::set<std::string> avecMots;
    std::set<std::string> avecBulle;
    for (const Libelle& libelle : libelles) {
        VerifierRangee(fenetre, libelle, defauts);
        if (!vues.insert({libelle.controle, libelle.propriete}).second) {
            defauts.push_back(std::string(libelle.controle) + ": told twice");
        }
        if (libelle.propriete == Propriete::Bulle) {
            avecBulle.insert(libelle.controle);
        } else if (libelle.propriete != Propriete::Etat && libelle.propriete != Propriete::Detail) {
            avecMots.insert(libelle.controle);
        }
    }
    for (const QObject* objet : fenetre.findChildren<QObject*>()) {
        if (NomDuSysteme(objet->objectName()) || !MontreDuTexte(*objet)) continue;
        if (DansUnControleCompose(*objet) || SansMotsPropres(*objet)) continue;
        const std::string nom = objet->objectName().toStdString();
        const bool boutonMuet = qobject_cast<const QToolButton*>(objet) != nullptr && avecBulle.contains(nom);
        if (!avecMots.contains(nom) && !boutonMuet) defauts.push_back(nom + ": shows text and has no row");
    }
    return defauts;
}

} // namespace tessarel
