// The window that the program starts in: which machine is current, whether an interface was found, which
// memories it holds, whether motion is allowed, and the way into the modes.
#include "app/ui/frmSplashScreen.h"

#include "app/texts/textes_programme.h"
#include "app/ui/enseigne.h"
#include "app/ui/frmListeModifications.h"
#include "app/ui/libelles_accueil.h"
#include "platform/dialogue.h"
#include "ui/boites_qt.h"
#include "ui/grand_bouton.h"
#include "ui/icones.h"
#include "ui/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>

#include <QDesktopServices>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace tessarel {

namespace {

// Row of TextesMessages: what to heed on the download page.
constexpr int RangeeMiseAJour = 251;

constexpr QSize TailleImage(40, 40);

QLabel* FaireEtiquette(const char* nom, QWidget* parent = nullptr) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(nom);
    etiquette->setTextFormat(Qt::PlainText);
    return etiquette;
}

// A check box that tells and isn't asked: it keeps the look of a live one.
QCheckBox* FaireTemoin(const QString& nom) {
    auto* temoin = new QCheckBox;
    temoin->setObjectName(nom);
    temoin->setFocusPolicy(Qt::NoFocus);
    temoin->setAttribute(Qt::WA_TransparentForMouseEvents);
    return temoin;
}

void Colorer(QLabel& etiquette, const QColor& couleur) {
    QPalette palette = etiquette.palette();
    palette.setColor(QPalette::WindowText, couleur);
    etiquette.setPalette(palette);
}

void Agrandir(QWidget& controle, double facteur, bool gras) {
    QFont police = controle.font();
    police.setPointSizeF(police.pointSizeF() * facteur);
    police.setBold(gras);
    controle.setFont(police);
}

QColor CouleurDe(CouleurLibelle couleur) {
    switch (couleur) {
    case CouleurLibelle::Rouge:
        return CouleurAlerte();
    case CouleurLibelle::Verte:
        return CouleurAccord();
    case CouleurLibelle::Ordinaire:
        break;
    }
    return QApplication::palette().color(QPalette::WindowText);
}

void Ecrire(QLabel& etiquette, const LibelleEtat& libelle) {
    etiquette.setText(TexteAffiche(libelle.Texte));
    Colorer(etiquette, CouleurDe(libelle.Couleur));
    etiquette.setVisible(libelle.Visible);
}

QString AdresseDansLangue(const char* adresse, Langue langue) {
    return QString::fromUtf8(adresse) +
           (langue == Langue::English ? QStringLiteral("/en") : QStringLiteral("/fr"));
}

} // namespace

frmSplashScreen::frmSplashScreen(QWidget* parent) : QWidget(parent) {
    setObjectName("frmSplashScreen");
    setWindowIcon(IconeProgramme());

    auto* corps = new QVBoxLayout;
    corps->setContentsMargins(18, 14, 18, 14);
    corps->setSpacing(14);
    auto* cadres = new QHBoxLayout;
    cadres->setSpacing(14);
    cadres->addWidget(FaireInterface(), 3);
    cadres->addWidget(FaireMachine(), 2);
    corps->addLayout(cadres, 1);
    corps->addLayout(FaireContinuer());
    corps->addLayout(FairePied());

    auto* pose = new QVBoxLayout(this);
    pose->setContentsMargins(0, 0, 0, 0);
    pose->setSpacing(0);
    pose->addWidget(FaireEnseigne());
    pose->addLayout(corps, 1);
    resize(840, 600);

    Relier();
    ChargerLibelles(LangueCourante());
}

QWidget* frmSplashScreen::FaireEnseigne() {
    auto* enseigne = new Enseigne;
    m_lblTitre = FaireEtiquette("lblTitre");
    m_lblTitre->setText(QStringLiteral("Tessarel"));
    Agrandir(*m_lblTitre, 3.4, true);
    m_lblSousTitre = FaireEtiquette("lblSousTitre");
    Agrandir(*m_lblSousTitre, 1.15, false);
    m_lblVersion = FaireEtiquette("lblVersion");
    m_lblVersion->setText(QStringLiteral("%1.%2.%3")
                              .arg(TESSAREL_VERSION_MAJEURE)
                              .arg(TESSAREL_VERSION_MINEURE)
                              .arg(TESSAREL_VERSION_REVISION));
    auto* pose = new QVBoxLayout(enseigne);
    pose->setContentsMargins(28, 24, 28, 20);
    pose->setSpacing(2);
    pose->addStretch(2);
    pose->addWidget(m_lblTitre);
    pose->addWidget(m_lblSousTitre);
    pose->addSpacing(8);
    pose->addWidget(m_lblVersion);
    pose->addStretch(3);
    return enseigne;
}

QWidget* frmSplashScreen::FaireInterface() {
    m_frameInterface = new QGroupBox;
    m_frameInterface->setObjectName("frameInterface");
    m_pcbInterfaceDetectee = FaireEtiquette("pcbInterfaceDetectee");
    m_pcbInterfaceDetectee->setFixedSize(TailleImage);
    m_lblDetectionInterface = FaireEtiquette("lblDetectionInterface");
    Agrandir(*m_lblDetectionInterface, 1.1, true);
    m_lblNomMachinesMemoire = FaireEtiquette("lblNomMachinesMemoire");
    m_lblPasDeCorrespondance = FaireEtiquette("lblPasDeCorrespondance");
    m_lblPasDeCorrespondance->setWordWrap(true);
    Agrandir(*m_lblPasDeCorrespondance, 1.0, true);

    auto* pose = new QGridLayout(m_frameInterface);
    pose->setHorizontalSpacing(12);
    pose->setColumnStretch(1, 1);
    pose->addWidget(m_pcbInterfaceDetectee, 0, 0, Qt::AlignTop);
    pose->addWidget(m_lblDetectionInterface, 0, 1);
    pose->addWidget(m_lblNomMachinesMemoire, 1, 1);
    for (std::size_t i = 0; i < m_chkMemoiresZelko.size(); ++i) {
        m_chkMemoiresZelko[i] = FaireTemoin(QStringLiteral("chkMemoiresZelko_%1").arg(i));
        m_lblMarqueMemoire[i] = FaireEtiquette(qPrintable(QStringLiteral("lblMarqueMemoire_%1").arg(i)));
        auto* rangee = new QHBoxLayout;
        rangee->addWidget(m_chkMemoiresZelko[i]);
        rangee->addWidget(m_lblMarqueMemoire[i]);
        rangee->addStretch();
        pose->addLayout(rangee, 2 + static_cast<int>(i), 1);
    }
    pose->addWidget(m_lblPasDeCorrespondance, 5, 1);
    pose->setRowStretch(6, 1);
    return m_frameInterface;
}

QWidget* frmSplashScreen::FaireMachine() {
    m_frameMachine = new QGroupBox;
    m_frameMachine->setObjectName("frameMachine");
    m_pcbDerniereMachine = FaireEtiquette("pcbDerniereMachine");
    m_pcbDerniereMachine->setFixedSize(TailleImage);
    m_lblDerniereMachine = FaireEtiquette("lblDerniereMachine");
    m_chkDerniereMachine = FaireTemoin(QStringLiteral("chkDerniereMachine"));
    m_chkDerniereMachine->setChecked(true);
    Agrandir(*m_chkDerniereMachine, 1.1, true);
    m_lblCourses = FaireEtiquette("lblCourses");

    auto* pose = new QGridLayout(m_frameMachine);
    pose->setHorizontalSpacing(12);
    pose->setColumnStretch(1, 1);
    pose->addWidget(m_pcbDerniereMachine, 0, 0, 2, 1, Qt::AlignTop);
    pose->addWidget(m_lblDerniereMachine, 0, 1);
    pose->addWidget(m_chkDerniereMachine, 1, 1);
    pose->addWidget(m_lblCourses, 2, 1);
    pose->setRowStretch(3, 1);
    return m_frameMachine;
}

QLayout* frmSplashScreen::FaireContinuer() {
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(14);
    for (std::size_t i = 0; i < m_cmdContinuer.size(); ++i) {
        auto* bouton = new GrandBouton;
        bouton->setObjectName(QStringLiteral("cmdContinuer_%1").arg(i));
        bouton->setAutoDefault(true);
        rangee->addWidget(bouton, 1);
        m_cmdContinuer[i] = bouton;
    }
    m_cmdContinuer[1]->setEnabled(false);
    return rangee;
}

QToolButton* frmSplashScreen::FaireBoutonPied(const char* nom) {
    auto* bouton = new QToolButton;
    bouton->setObjectName(nom);
    bouton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bouton->setAutoRaise(true);
    bouton->setFocusPolicy(Qt::StrongFocus);
    bouton->setIconSize(QSize(20, 20));
    return bouton;
}

QLayout* frmSplashScreen::FairePied() {
    m_cmdWhatsUp = FaireBoutonPied("cmdWhatsUp");
    m_cmdLancerOrvane = FaireBoutonPied("cmdLancerOrvane");
    m_cmdMiseAJour = FaireBoutonPied("cmdMiseAJour");
    m_cmdAnnuler = FaireBoutonPied("cmdAnnuler");
    m_cmdMiseAJour->hide();
    auto* rangee = new QHBoxLayout;
    for (QToolButton* bouton : {m_cmdWhatsUp, m_cmdLancerOrvane, m_cmdMiseAJour}) rangee->addWidget(bouton);
    rangee->addStretch();
    rangee->addWidget(m_cmdAnnuler);
    return rangee;
}

void frmSplashScreen::Relier() {
    for (std::size_t i = 0; i < m_cmdContinuer.size(); ++i) {
        connect(m_cmdContinuer[i], &QAbstractButton::clicked, this,
                [this, i] { emit Continuer(static_cast<ModeChoisi>(i)); });
    }
    connect(m_cmdAnnuler, &QAbstractButton::clicked, this, &QWidget::close);
    connect(m_cmdWhatsUp, &QAbstractButton::clicked, this,
            [this] { frmListeModifications(m_langue, this).exec(); });
    connect(m_cmdLancerOrvane, &QAbstractButton::clicked, this,
            [this] { OuvrirSite(AdresseDansLangue(TESSAREL_SITE, m_langue)); });
    connect(m_cmdMiseAJour, &QAbstractButton::clicked, this, [this] { MettreAJour(); });
}

void frmSplashScreen::ChargerLibelles(Langue langue) {
    m_langue = langue;
    AppliquerLibelles(*this, LibellesSplash(), langue);
    Peindre();
}

void frmSplashScreen::Montrer(const EtatDemarrage& etat) {
    m_etat = etat;
    Peindre();
    const bool vers2D = etat.FocusSur2D || !m_cmdContinuer[1]->isEnabled();
    m_cmdContinuer[vers2D ? 0 : 1]->setFocus();
    if (const QScreen* ecran = screen()) move(ecran->availableGeometry().center() - rect().center());
}

void frmSplashScreen::MontrerCourses(int courseX, int courseY) {
    m_courseX = courseX;
    m_courseY = courseY;
    MontrerMachine();
}

void frmSplashScreen::PermettreMode4Axes() {
    m_cmdContinuer[1]->setEnabled(true);
    m_cmdContinuer[1]->setToolTip({});
}

void frmSplashScreen::ProposerMiseAJour() {
    m_cmdMiseAJour->show();
}

void frmSplashScreen::Peindre() {
    MontrerMachine();
    MontrerInterface();
    MontrerMemoires();
}

void frmSplashScreen::MontrerMachine() {
    m_chkDerniereMachine->setText(QString::fromStdString(m_etat.Splash.NomMachine));
    m_pcbDerniereMachine->setPixmap(Icone(QStringLiteral("machine")).pixmap(TailleImage));
    m_lblCourses->setVisible(m_courseX > 0 && m_courseY > 0);
    m_lblCourses->setText(QString::fromStdString(
        TexteRempli(TexteProgramme::SplashCourses, {std::to_string(m_courseX), std::to_string(m_courseY)})));
}

void frmSplashScreen::MontrerInterface() {
    const EtatSplash& splash = m_etat.Splash;
    Ecrire(*m_lblDetectionInterface, splash.Detection);
    Ecrire(*m_lblPasDeCorrespondance, splash.Correspondance);
    m_lblNomMachinesMemoire->setVisible(splash.NomsVisibles);
    const bool trouvee = splash.Detection.Couleur == CouleurLibelle::Verte;
    const QString image = trouvee ? QStringLiteral("interface") : QStringLiteral("interface-absente");
    m_pcbInterfaceDetectee->setPixmap(Icone(image).pixmap(TailleImage));
}

void frmSplashScreen::MontrerMemoires() {
    for (std::size_t i = 0; i < m_chkMemoiresZelko.size(); ++i) {
        const MemoireAffichee& memoire = m_etat.Splash.Memoires[i];
        m_chkMemoiresZelko[i]->setText(QString::fromStdString(memoire.Nom));
        m_chkMemoiresZelko[i]->setChecked(memoire.Cochee);
        m_chkMemoiresZelko[i]->setVisible(memoire.Visible);
        const bool vide = memoire.Visible && memoire.Nom.empty();
        TexteProgramme marque =
            memoire.Differente ? TexteProgramme::SplashMemoireDifferente : TexteProgramme::SplashMemoireEgale;
        if (vide) marque = TexteProgramme::SplashMemoireVide;
        m_lblMarqueMemoire[i]->setText(QString::fromStdString(Texte(marque)));
        // A box without a caption leaves no room behind itself.
        m_lblMarqueMemoire[i]->setContentsMargins(vide ? 5 : 0, 0, 0, 0);
        const QColor encre = memoire.Differente ? CouleurAlerte() : CouleurAccord();
        Colorer(*m_lblMarqueMemoire[i],
                vide ? QApplication::palette().color(QPalette::PlaceholderText) : encre);
        m_lblMarqueMemoire[i]->setVisible(memoire.Visible && (memoire.Cochee || vide));
    }
}

void frmSplashScreen::OuvrirSite(const QString& adresse) {
    QDesktopServices::openUrl(QUrl(adresse));
}

void frmSplashScreen::MettreAJour() {
    AfficherInformation(TextesMessages(RangeeMiseAJour), TitresMessages(RangeeMiseAJour));
    OuvrirSite(AdresseDansLangue(TESSAREL_SITE_TELECHARGEMENT, m_langue));
    close();
}

void frmSplashScreen::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    // Pictures and coloured words are made for one palette.
    if (evenement->type() == QEvent::PaletteChange && m_lblCourses != nullptr) {
        Peindre();
    }
}

void frmSplashScreen::closeEvent(QCloseEvent* evenement) {
    evenement->accept();
    emit Annuler();
}

} // namespace tessarel
