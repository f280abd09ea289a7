// Message boxes as windows of the desktop program.
#include "ui/boites_qt.h"

#include "app/texts/textes.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tessarel {

namespace {

// While it lives the plain pointer shows, whatever hourglass is set: the user is asked to click.
class PointeurOrdinaire {
public:
    PointeurOrdinaire() {
        if (QGuiApplication::overrideCursor() != nullptr) {
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
            m_pose = true;
        }
    }
    ~PointeurOrdinaire() {
        if (m_pose) QGuiApplication::restoreOverrideCursor();
    }
    PointeurOrdinaire(const PointeurOrdinaire&) = delete;
    PointeurOrdinaire& operator=(const PointeurOrdinaire&) = delete;

private:
    bool m_pose = false;
};

QMessageBox::Icon IconeQt(IconeBoite icone) {
    switch (icone) {
    case IconeBoite::Information:
        return QMessageBox::Information;
    case IconeBoite::Exclamation:
        return QMessageBox::Warning;
    case IconeBoite::Critique:
        return QMessageBox::Critical;
    case IconeBoite::Question:
        return QMessageBox::Question;
    case IconeBoite::Aucune:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons BoutonsQt(BoutonsBoite boutons) {
    switch (boutons) {
    case BoutonsBoite::OkAnnuler:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case BoutonsBoite::OuiNon:
        return QMessageBox::Yes | QMessageBox::No;
    case BoutonsBoite::OuiNonAnnuler:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoutonsBoite::Ok:
        break;
    }
    return QMessageBox::Ok;
}

struct MotBouton {
    QMessageBox::StandardButton bouton;
    const char* francais;
    const char* english;
};
constexpr MotBouton MotsBoutons[] = {
    {QMessageBox::Ok, "OK", "OK"},
    {QMessageBox::Cancel, "Annuler", "Cancel"},
    {QMessageBox::Yes, "&Oui", "&Yes"},
    {QMessageBox::No, "&Non", "&No"},
};

// A text that begins with a tab is set out in columns. An empty line parts its groups, each under its
// heading; a line "key TAB meaning" is a row. The groups stand in two halves, side by side.
bool EnColonnes(const QString& texte) {
    return texte.startsWith(u'\t');
}

QString RangeeDeTableau(const QString& ligne) {
    const qsizetype tab = ligne.indexOf(u'\t');
    if (tab < 0) return QStringLiteral("<tr><td colspan='2'><b>%1</b></td></tr>").arg(ligne.toHtmlEscaped());
    return QStringLiteral("<tr><td style='white-space: pre; padding-right: 14px'>%1</td>"
                          "<td style='white-space: pre'>%2</td></tr>")
        .arg(ligne.left(tab).toHtmlEscaped(), ligne.mid(tab + 1).toHtmlEscaped());
}

QString TableauDeLignes(const QString& texte) {
    const QStringList groupes = texte.mid(1).split(QStringLiteral("\n\n"));
    QString moities[2];
    qsizetype faits = 0;
    for (const QString& groupe : groupes) {
        QString& moitie = moities[2 * faits >= texte.size() ? 1 : 0];
        if (!moitie.isEmpty()) moitie += QStringLiteral("<tr><td>&nbsp;</td></tr>");
        for (const QString& ligne : groupe.split(u'\n')) moitie += RangeeDeTableau(ligne);
        faits += groupe.size();
    }
    return QStringLiteral("<table><tr><td><table>%1</table></td><td style='padding-left: 28px'>"
                          "<table>%2</table></td></tr></table>")
        .arg(moities[0], moities[1]);
}

ReponseBoite ReponseDepuisBouton(QMessageBox::StandardButton bouton) {
    switch (bouton) {
    case QMessageBox::Ok:
        return ReponseBoite::Ok;
    case QMessageBox::Yes:
        return ReponseBoite::Oui;
    case QMessageBox::No:
        return ReponseBoite::Non;
    default:
        return ReponseBoite::Annuler;
    }
}

ReponseBoite AfficherParQt(const Boite& boite) {
    const PointeurOrdinaire pointeur;
    QMessageBox fenetre(QApplication::activeWindow());
    PreparerBoite(fenetre, boite);
    return ReponseDepuisBouton(static_cast<QMessageBox::StandardButton>(fenetre.exec()));
}

} // namespace

QString TexteAffiche(const std::string& texte) {
    return QString::fromStdString(texte).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void PreparerBoite(QMessageBox& fenetre, const Boite& boite) {
    // Plain text: a file name with an angle bracket must not be taken for markup.
    fenetre.setTextFormat(Qt::PlainText);
    fenetre.setWindowTitle(TexteAffiche(boite.titre));
    fenetre.setText(TexteAffiche(boite.texte));
    if (EnColonnes(fenetre.text())) {
        fenetre.setTextFormat(Qt::RichText);
        fenetre.setText(TableauDeLignes(fenetre.text()));
    }
    fenetre.setIcon(IconeQt(boite.icone));
    fenetre.setStandardButtons(BoutonsQt(boite.boutons));
    const bool anglais = LangueCourante() == Langue::English;
    for (const MotBouton& mot : MotsBoutons) {
        if (QAbstractButton* bouton = fenetre.button(mot.bouton)) {
            bouton->setText(QString::fromUtf8(anglais ? mot.english : mot.francais));
            bouton->setIcon({}); // some desktops add pictures of their own beside ours
        }
    }
    for (const auto sortie : {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Ok}) {
        if (fenetre.button(sortie) != nullptr) {
            fenetre.setEscapeButton(sortie);
            break;
        }
    }
}

void InstallerBoitesQt() {
    InstallerAfficheurBoite(AfficherParQt);
}

} // namespace tessarel
