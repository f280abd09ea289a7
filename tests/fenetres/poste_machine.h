// A desk for tests of the machine and material windows: folders and settings of their own, recorded boxes,
// and helpers that act as a person does.
#pragma once

#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "link/etat_interface.h"
#include "link/memoires.h"
#include "link/rafraichir.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QTest>
#include <QWidget>

#include <string>

namespace tessarel::essais {

class PosteMachine {
public:
    explicit PosteMachine(Langue langue = Langue::Francais, const std::string& fichier = "[Parametres]\r\n") {
        ChargerMessages(langue);
        DossiersProgramme = {};
        DossiersProgramme.Documents = dossier.Chemin() + "/";
        DossiersProgramme.Datas = dossier.Chemin();
        DossiersProgramme.FichierIni = dossier.Fichier("Tessarel.ini");
        EcrireFichierAtomique(DossiersProgramme.FichierIni, fichier);
        Parametres = {};
        TableINI = {};
        ReinitialiserEtatInterface();
        MemoiresZelko = {};
        CreerTableauDesNomsDeMachines();
        ChargerMachine("(Defaut)");
        ChargerBaseMatieres();
        ChoisirMatiere(MatieresMachine.front());
    }
    PosteMachine(const PosteMachine&) = delete;
    PosteMachine& operator=(const PosteMachine&) = delete;

    [[nodiscard]] std::string Fichier() const { return LireFichierEntier(DossiersProgramme.FichierIni); }
    [[nodiscard]] bool FichierContient(const std::string& texte) const {
        return Fichier().find(texte) != std::string::npos;
    }
    [[nodiscard]] Boite DerniereBoite() const {
        return boites.boites.empty() ? Boite() : boites.boites.back();
    }

    DossierProvisoire dossier;
    BoitesEnregistrees boites;
};

template <typename T>
T& Controle(const QWidget& fenetre, const char* nom) {
    auto* controle = fenetre.findChild<T*>(QString::fromLatin1(nom));
    if (controle == nullptr) qFatal("no control %s", nom);
    return *controle;
}

inline void Cliquer(const QWidget& fenetre, const char* nom) {
    auto& bouton = Controle<QAbstractButton>(fenetre, nom);
    // A check box takes clicks on its indicator and its words, not on the room beside them.
    QTest::mouseClick(&bouton, Qt::LeftButton, Qt::NoModifier,
                      {std::min(12, bouton.width() / 2), bouton.height() / 2});
}

// Buttons and labels whose words do not fit in what the layout gives them, pages wider than their view.
inline QStringList MotsCoupes(const QWidget& fenetre) {
    QStringList coupes;
    for (const auto* bouton : fenetre.findChildren<QAbstractButton*>()) {
        if (!bouton->isVisible() || bouton->text().isEmpty()) continue;
        if (bouton->width() < bouton->sizeHint().width() || bouton->height() < bouton->sizeHint().height())
            coupes << bouton->objectName();
    }
    for (const auto* etiquette : fenetre.findChildren<QLabel*>()) {
        if (!etiquette->isVisible() || etiquette->wordWrap() || etiquette->text().isEmpty()) continue;
        if (etiquette->width() < etiquette->sizeHint().width()) coupes << etiquette->objectName();
    }
    for (const auto* page : fenetre.findChildren<QScrollArea*>()) {
        if (page->isVisible() && page->widget()->width() > page->viewport()->width())
            coupes << QStringLiteral("a page of %1 pixels in %2")
                          .arg(page->widget()->width())
                          .arg(page->viewport()->width());
    }
    return coupes;
}

inline void Exposer(QWidget& fenetre) {
    fenetre.show();
    QApplication::setActiveWindow(&fenetre);
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
}

} // namespace tessarel::essais
