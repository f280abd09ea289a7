// Painting of drawings: to scale, clipped, thinned below the pixel, and into a PNG without any application
// object.
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/images/images.h"
#include "platform/images/peinture_qt.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <random>

using namespace tessarel;

namespace {

constexpr Couleur Blanc{255, 255, 255, 255};
constexpr Couleur Rouge{255, 0, 0, 255};

TraitDessin AjouterTrait(Dessin& dessin, const std::vector<PointDessin>& points, Couleur couleur = Rouge) {
    TraitDessin trait;
    trait.premier = static_cast<std::uint32_t>(dessin.points.size());
    trait.nombre = static_cast<std::uint32_t>(points.size());
    trait.couleur = couleur;
    dessin.points.insert(dessin.points.end(), points.begin(), points.end());
    dessin.traits.push_back(trait);
    return trait;
}

QImage Feuille(int largeur, int hauteur) {
    QImage image(largeur, hauteur, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

QImage Peint(const Dessin& dessin, const VueDessin& vue, PeintreDessin::Compte* compte = nullptr) {
    QImage image = Feuille(static_cast<int>(vue.largeur), static_cast<int>(vue.hauteur));
    QPainter peintre(&image);
    PeintreDessin pinceau;
    pinceau.avecTextes = false;
    pinceau.Peindre(peintre, DessinPrepare(dessin), vue);
    if (compte != nullptr) *compte = pinceau.DernierCompte();
    return image;
}

int Encre(const QImage& image) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) n += image.pixel(x, y) != 0xffffffff ? 1 : 0;
    }
    return n;
}

bool EstRouge(QRgb p) {
    return qRed(p) > 200 && qGreen(p) < 140 && qBlue(p) < 140;
}

} // namespace

class EssaiPeinture : public QObject {
    Q_OBJECT
private slots:
    void UneVueMontreLeCadreEntierAuMilieu() {
        // 100 x 50 mm in 220 x 220 pixels with 10 pixels around: 200 / 100 = 2 pixels per mm.
        const VueDessin vue = VueSurCadre({0, 100, 0, 50}, 220, 220, 10);
        QCOMPARE(vue.echelle, 2.0);
        QCOMPARE(vue.EnPixels({0, 0}), QPointF(10, 160));
        QCOMPARE(vue.EnPixels({100, 50}), QPointF(210, 60));
        const PointDessin p = vue.EnMm(QPointF(10, 160));
        QCOMPARE(p.X + 1, 1.0);
        QCOMPARE(p.Y + 1, 1.0);
    }

    void UnApercuSEcritSansApplication() {
        QVERIFY(QCoreApplication::instance() == nullptr);
        essais::DossierProvisoire dossier;
        Dessin dessin;
        AjouterTrait(dessin, {{0, 0}, {100, 0}});
        dessin.traits.back().epaisseur = 3;
        TexteDessin texte;
        texte.ou = {50, 30};
        texte.texte = "Bloc 100 mm";
        texte.taille = 20;
        texte.couleur = Rouge;
        dessin.textes.push_back(texte);
        const std::string chemin = dossier.Fichier("apercu.png");
        EcrireApercuPng(chemin, dessin, {0, 100, -50, 50}, 232, 232, Blanc);
        const QImage image(QString::fromStdString(chemin));
        QCOMPARE(image.size(), QSize(232, 232));
        // 200 pixels for 100 mm, margins of 16: the line lies on y = 116, from x = 16 to 216.
        QVERIFY(EstRouge(image.pixel(18, 116)));
        QVERIFY(EstRouge(image.pixel(116, 116)));
        QVERIFY(EstRouge(image.pixel(214, 116)));
        QCOMPARE(image.pixel(116, 122), 0xffffffffU);
        QCOMPARE(image.pixel(8, 116), 0xffffffffU);
        // The label stands about y = 56.
        QVERIFY(Encre(image.copy(40, 44, 152, 24)) > 60);
        QVERIFY(QCoreApplication::instance() == nullptr);
    }

    void UnSecondApercuSEcritAussi() {
        essais::DossierProvisoire dossier;
        for (const char* nom : {"a.png", "b.png"}) {
            EcrireApercuPng(dossier.Fichier(nom), Dessin(), {0, 10, 0, 10}, 64, 48, {20, 20, 20, 255});
            QVERIFY(!QImage(QString::fromStdString(dossier.Fichier(nom))).isNull());
        }
    }

    void UnDossierAbsentRefuseLApercuSansRienLaisser() {
        essais::DossierProvisoire dossier;
        const std::string chemin = dossier.Fichier("absent/apercu.png");
        QVERIFY_EXCEPTION_THROWN(EcrireApercuPng(chemin, Dessin(), {0, 10, 0, 10}, 64, 48, Blanc),
                                 FauteFichier);
        QVERIFY(std::filesystem::is_empty(dossier.Chemin()));
    }

    void CeQuiEstHorsDeVueNeCouteRien() {
        Dessin dessin;
        std::vector<PointDessin> loin;
        for (int i = 0; i < 10000; ++i) loin.push_back({1000.0 + i, 1000.0 + (i % 7)});
        AjouterTrait(dessin, loin);
        PeintreDessin::Compte compte;
        const QImage image = Peint(dessin, VueSurCadre({0, 100, 0, 100}, 200, 200, 0), &compte);
        QCOMPARE(compte.sommets, std::size_t{0});
        QCOMPARE(Encre(image), 0);
    }

    void CentMillePointsSurCentPixelsEnDonnentPeu() {
        Dessin dessin;
        std::vector<PointDessin> points;
        for (int i = 0; i < 100000; ++i) points.push_back({i / 1000.0, 50});
        AjouterTrait(dessin, points);
        PeintreDessin::Compte compte;
        const QImage image = Peint(dessin, VueSurCadre({0, 100, 0, 100}, 100, 100, 0), &compte);
        QVERIFY(compte.sommets > 1 && compte.sommets < 20);
        for (int x = 2; x < 98; ++x) QVERIFY(EstRouge(image.pixel(x, 49)) || EstRouge(image.pixel(x, 50)));
    }

    void UnCercleDeCentMillePointsGardeSaForme() {
        Dessin dessin;
        std::vector<PointDessin> points;
        for (int i = 0; i <= 100000; ++i) {
            const double a = i * 2 * 3.14159265358979 / 100000;
            points.push_back({50 + 40 * std::cos(a), 50 + 40 * std::sin(a)});
        }
        AjouterTrait(dessin, points);
        PeintreDessin::Compte compte;
        const QImage image = Peint(dessin, VueSurCadre({0, 100, 0, 100}, 500, 500, 0), &compte);
        // A polygon 0.15 pixels inside a circle of 200 has about 2 pi / (2 acos(1 - 0.15 / 200)) = 81 sides.
        QVERIFY(compte.sommets > 40 && compte.sommets < 200);
        for (int degre = 0; degre < 360; ++degre) {
            const double a = degre * 3.14159265358979 / 180;
            QVERIFY(image.pixel(static_cast<int>(250 + 200 * std::cos(a)),
                                static_cast<int>(250 - 200 * std::sin(a))) != 0xffffffff);
        }
    }

    void UnAllerRetourGardeSonBout() {
        Dessin dessin;
        AjouterTrait(dessin, {{10, 50}, {40, 50}, {90, 50}, {60, 50}, {20, 50}, {20, 20}});
        const QImage image = Peint(dessin, VueSurCadre({0, 100, 0, 100}, 100, 100, 0));
        for (int x = 12; x < 89; ++x) QVERIFY(EstRouge(image.pixel(x, 50)) || EstRouge(image.pixel(x, 49)));
        QCOMPARE(image.pixel(93, 50), 0xffffffffU);
    }

    void UnDessinMinusculeResteVisible() {
        Dessin dessin;
        AjouterTrait(dessin, {{50, 50}, {50.0001, 50}, {50, 50.0001}});
        dessin.traits.back().epaisseur = 3;
        QVERIFY(Encre(Peint(dessin, VueSurCadre({0, 100, 0, 100}, 100, 100, 0))) > 0);
    }

    void LesCoordonneesQuiNeSontPasDesNombresSontOmises() {
        Dessin dessin;
        AjouterTrait(dessin,
                     {{0, 50}, {std::nan(""), 10}, {std::numeric_limits<double>::infinity(), 3}, {100, 50}});
        MarqueDessin marque;
        marque.ou = {std::nan(""), 0};
        dessin.marques.push_back(marque);
        const DessinPrepare prepare(dessin);
        QCOMPARE(prepare.Liste().traits[0].nombre, 2U);
        QCOMPARE(prepare.Cadre().XMax, 100.0);
        QVERIFY(EstRouge(Peint(dessin, VueSurCadre({0, 100, 0, 100}, 101, 101, 0)).pixel(50, 50)));
    }

    void UnTraitQuiDepasseLaListeEstRamene() {
        Dessin dessin;
        TraitDessin trait = AjouterTrait(dessin, {{0, 0}, {1, 1}});
        trait.nombre = 4000000000U;
        dessin.traits[0] = trait;
        trait.premier = 77;
        dessin.traits.push_back(trait);
        const DessinPrepare prepare(dessin);
        QCOMPARE(prepare.Liste().traits[0].nombre, 2U);
        QCOMPARE(prepare.Liste().traits[1].nombre, 0U);
    }

    void UneSurfacePlusGrandeQueLaVueLaRemplit() {
        Dessin dessin;
        AjouterTrait(dessin, {{-1e7, -1e7}, {1e7, -1e7}, {1e7, 1e7}, {-1e7, 1e7}});
        dessin.traits.back().genre = GenreTrait::Surface;
        QCOMPARE(Encre(Peint(dessin, VueSurCadre({0, 1, 0, 1}, 60, 60, 0))), 3600);
    }

    void LesMarquesConfonduesNeSePeignentQuUneFois() {
        Dessin dessin;
        for (int i = 0; i < 5000; ++i) {
            MarqueDessin marque;
            marque.ou = {50 + i * 1e-6, 50};
            dessin.marques.push_back(marque);
        }
        PeintreDessin::Compte compte;
        Peint(dessin, VueSurCadre({0, 100, 0, 100}, 100, 100, 0), &compte);
        QVERIFY(compte.marques >= 1 && compte.marques < 4);
    }

    // Clipping and decimation may move a line by less than a pixel, never lose or add one.
    void CoupeEtEclaircieLaFigureResteLaMeme_data() {
        QTest::addColumn<int>("graine");
        for (int graine = 1; graine <= 12; ++graine) QTest::addRow("graine %d", graine) << graine;
    }
    void CoupeEtEclaircieLaFigureResteLaMeme() {
        QFETCH(int, graine);
        std::mt19937 hasard(static_cast<unsigned>(graine));
        std::uniform_real_distribution<double> pas(-3, 3);
        Dessin dessin;
        std::vector<PointDessin> points = {{50, 50}};
        for (int i = 0; i < 400; ++i) {
            points.push_back({points.back().X + pas(hasard), points.back().Y + pas(hasard)});
            if (i % 50 == 0) points.push_back({points.back().X + 300 * pas(hasard), points.back().Y});
            if (i % 50 == 1) points.push_back({50, 50});
        }
        AjouterTrait(dessin, points);
        const VueDessin vue = VueSurCadre({30, 70, 30, 70}, 300, 300, 0);
        const QImage obtenue = Peint(dessin, vue);
        QImage attendue = Feuille(300, 300);
        QPainter peintre(&attendue);
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(QPen(Qt::red, 1));
        QPolygonF ligne;
        for (const PointDessin& p : points) ligne << vue.EnPixels(p);
        peintre.drawPolyline(ligne);
        peintre.end();
        // Ink of one picture has ink of the other within a pixel.
        const auto proche = [](const QImage& image, int x, int y) {
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (image.valid(x + dx, y + dy) && image.pixel(x + dx, y + dy) != 0xffffffff) return true;
                }
            }
            return false;
        };
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 300; ++x) {
                if (EstRouge(attendue.pixel(x, y))) QVERIFY2(proche(obtenue, x, y), "a line is lost");
                if (EstRouge(obtenue.pixel(x, y))) QVERIFY2(proche(attendue, x, y), "a line was added");
            }
        }
        QVERIFY(Encre(attendue) > 1000);
    }
};

QTEST_APPLESS_MAIN(EssaiPeinture)
#include "essai_peinture.moc"
