// The program's own icons: line drawings that take the colours of the palette in force when they are painted.
#include "ui/icones.h"

#include "ui/theme.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// The generated initialiser stands in the global namespace; a static library needs the call, or the linker
// drops the pictures.
static void OuvrirRessourcesIcones() {
    Q_INIT_RESOURCE(icones);
}

namespace tessarel {

namespace {

constexpr const char* RacineIcones = ":/tessarel/icones/";
// In the drawings: the ordinary line, and the wire or the path it follows.
constexpr const char* EncreDessin = "currentColor";
constexpr const char* AccentDessin = "#e8590c";

QColor EncrePour(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

class MoteurIcone final : public QIconEngine {
public:
    explicit MoteurIcone(QString nom) : m_nom(std::move(nom)) {
        QFile fichier(RacineIcones + m_nom + QStringLiteral(".svg"));
        if (fichier.open(QIODevice::ReadOnly)) m_dessin = fichier.readAll();
    }

    void paint(QPainter* peintre, const QRect& cadre, QIcon::Mode mode, QIcon::State etat) override {
        const qreal echelle = peintre->device()->devicePixelRatio();
        const QPixmap image = scaledPixmap(cadre.size() * echelle, mode, etat, echelle);
        peintre->drawPixmap(cadre, image);
    }

    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State) override {
        const QColor encre = EncrePour(mode);
        const QString cle = QStringLiteral("tessarel/%1/%2x%3/%4")
                                .arg(m_nom)
                                .arg(taille.width())
                                .arg(taille.height())
                                .arg(encre.rgba());
        QPixmap image;
        if (QPixmapCache::find(cle, &image)) return image;
        image = QPixmap(taille);
        image.fill(Qt::transparent);
        QByteArray dessin = m_dessin;
        dessin.replace(EncreDessin, encre.name().toLatin1());
        if (mode == QIcon::Disabled || mode == QIcon::Selected) {
            dessin.replace(AccentDessin, encre.name().toLatin1());
        }
        QSvgRenderer rendu(dessin);
        rendu.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter peintre(&image);
        rendu.render(&peintre);
        peintre.end();
        QPixmapCache::insert(cle, image);
        return image;
    }

    QPixmap scaledPixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat, qreal echelle) override {
        QPixmap image = pixmap(taille, mode, etat);
        image.setDevicePixelRatio(echelle);
        return image;
    }

    QSize actualSize(const QSize& taille, QIcon::Mode, QIcon::State) override { return taille; }
    bool isNull() override { return m_dessin.isEmpty(); }
    QString key() const override { return QStringLiteral("tessarel"); }
    QString iconName() override { return m_nom; }
    QIconEngine* clone() const override { return new MoteurIcone(*this); }

private:
    QString m_nom;
    QByteArray m_dessin;
};

} // namespace

QIcon Icone(const QString& nom) {
    OuvrirRessourcesIcones();
    if (!QFile::exists(RacineIcones + nom + QStringLiteral(".svg"))) return {};
    return QIcon(new MoteurIcone(nom));
}

QStringList NomsIcones() {
    OuvrirRessourcesIcones();
    QStringList noms =
        QDir(QString::fromLatin1(RacineIcones)).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (QString& nom : noms) nom.chop(4);
    return noms;
}

QIcon IconeProgramme() {
    OuvrirRessourcesIcones();
    QIcon icone;
    for (const int cote : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap image(cote, cote);
        image.fill(Qt::transparent);
        QSvgRenderer rendu(QStringLiteral(":/tessarel/tessarel.svg"));
        QPainter peintre(&image);
        rendu.render(&peintre);
        peintre.end();
        icone.addPixmap(image);
    }
    return icone;
}

} // namespace tessarel
