// A drawing painted into a PNG file, with or without a window system.
#include "platform/images/images.h"

#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/images/peinture_qt.h"
#include "platform/raisons.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <memory>
#include <string_view>

namespace tessarel {

namespace {

constexpr double MargeApercu = 16;   // pixels around the frame
constexpr int CoteMaxApercu = 16384; // pixels: four bytes each, a gigabyte at most

// Fonts need an application object; where the program has none, one that asks for no display serves
// meanwhile.
std::unique_ptr<QGuiApplication> ApplicationSiAbsente() {
    if (QCoreApplication::instance() != nullptr) return nullptr;
    static int nombre = 3;
    static std::array<char, 9> nom = {"tessarel"};
    static std::array<char, 10> option = {"-platform"};
    static std::array<char, 10> valeur = {"offscreen"};
    static std::array<char*, 4> arguments = {nom.data(), option.data(), valeur.data(), nullptr};
    nombre = 3;
    arguments = {nom.data(), option.data(), valeur.data(), nullptr};
    // The toolkit would say on standard error what a run without a session lacks; nothing of it is needed
    // here.
    const QtMessageHandler ancien =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    auto application = std::make_unique<QGuiApplication>(nombre, arguments.data());
    qInstallMessageHandler(ancien);
    return application;
}

// A length of 1, 2 or 5 times a power of ten that takes about a sixth of the picture.
double LongueurEchelle(double mmParLargeur) {
    const double cible = mmParLargeur / 6;
    const double decade = std::pow(10, std::floor(std::log10(cible)));
    for (const double facteur : {5.0, 2.0}) {
        if (facteur * decade <= cible) return facteur * decade;
    }
    return decade;
}

void PeindreEchelle(QPainter& peintre, const VueDessin& vue, Couleur fond, bool avecTexte) {
    const double mm = LongueurEchelle(vue.largeur / vue.echelle);
    const double longueur = mm * vue.echelle;
    const int clarte = (299 * fond.rouge + 587 * fond.vert + 114 * fond.bleu) / 1000;
    const QColor encre = clarte < 128 ? QColor(225, 225, 225) : QColor(50, 50, 50);
    const double y = vue.hauteur - 12;
    const double x = vue.largeur - 12 - longueur;
    peintre.setRenderHint(QPainter::Antialiasing, false);
    peintre.fillRect(QRectF(x, y - 1, longueur, 2), encre);
    peintre.fillRect(QRectF(x, y - 5, 1, 9), encre);
    peintre.fillRect(QRectF(x + longueur - 1, y - 5, 1, 9), encre);
    if (!avecTexte) return;
    QFont police = peintre.font();
    police.setPixelSize(12);
    peintre.setFont(police);
    peintre.setPen(encre);
    peintre.drawText(QRectF(x - 60, y - 24, longueur + 120, 18), Qt::AlignCenter,
                     QString::number(mm, 'g', 6) + QStringLiteral(" mm"));
}

} // namespace

void EcrireApercuPng(const std::string& chemin, const Dessin& dessin, const CadreDessin& cadre, int largeur,
                     int hauteur, Couleur fond) {
    const auto application = ApplicationSiAbsente();
    QImage image(std::clamp(largeur, 1, CoteMaxApercu), std::clamp(hauteur, 1, CoteMaxApercu),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) throw FauteFichier(NumeroErreur::EcritureImpossible, chemin, RaisonSysteme(ENOMEM));
    image.fill(EnQColor(fond));
    const bool polices = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    {
        QPainter peintre(&image);
        const VueDessin vue = VueSurCadre(cadre, image.width(), image.height(), MargeApercu);
        PeintreDessin pinceau;
        pinceau.avecTextes = polices;
        pinceau.Peindre(peintre, DessinPrepare(dessin), vue);
        PeindreEchelle(peintre, vue, fond, polices);
    }
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    if (!image.save(&tampon, "PNG")) {
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin,
                           SelonLangue("l'image n'a pas pu être codée", "the picture could not be encoded"));
    }
    EcrireFichierAtomique(chemin,
                          std::string_view(octets.constData(), static_cast<std::size_t>(octets.size())));
}

} // namespace tessarel
