// Makes an explanation document at build time: a text with its figures, laid out on A4 pages as PDF.
//   explications TEXT.html DOCUMENT.pdf [fr|en]
#include "figures.h"

#include "platform/images/peinture_qt.h"

#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

namespace {

using namespace tessarel;

constexpr int Finesse = 4; // pixels of a figure per unit of its place in the text

// A document that draws its figures when the text names them: <img src="figure:NAME" width=... height=...>.
class Document : public QTextDocument {
public:
    explicit Document(bool english) : m_english(english) {}

protected:
    QVariant loadResource(int genre, const QUrl& url) override {
        if (url.scheme() != QStringLiteral("figure")) return QTextDocument::loadResource(genre, url);
        const explications::Figure figure = explications::FaireFigure(url.path().toStdString(), m_english);
        const double largeur = 470;
        const double rapport =
            (figure.cadre.YMax - figure.cadre.YMin) / (figure.cadre.XMax - figure.cadre.XMin);
        QImage image(static_cast<int>(largeur) * Finesse, static_cast<int>(largeur * rapport) * Finesse,
                     QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter peintre(&image);
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.scale(Finesse, Finesse);
        PeintreDessin().Peindre(peintre, DessinPrepare(figure.dessin),
                                VueSurCadre(figure.cadre, largeur, largeur * rapport, 4));
        return image;
    }

private:
    bool m_english;
};

bool Ecrire(const QString& texte, const QString& sortie, bool english) {
    QPdfWriter pdf(sortie);
    pdf.setTitle(english ? QStringLiteral("Measuring the kerf of a material")
                         : QStringLiteral("Mesurer la saignée d'une matière"));
    pdf.setCreator(QStringLiteral("Tessarel"));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter); // the document adds its own
    pdf.setResolution(96);
    Document document(english);
    document.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    document.setDefaultStyleSheet(QStringLiteral(
        "h1 { font-size: 19pt; color: #1c2430; } h2 { font-size: 13pt; color: #b8450a; margin-top: 12px; } "
        "p, li { line-height: 125%; }"));
    document.setHtml(texte);
    document.print(&pdf);
    return QFile(sortie).size() > 0;
}

} // namespace

int main(int argc, char** argv) {
    // No display is there while a program is built.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: explications TEXT.html DOCUMENT.pdf [fr|en]\n", stderr);
        return 2;
    }
    QFile source(arguments.at(1));
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "explications: %s: %s\n", qPrintable(arguments.at(1)),
                     qPrintable(source.errorString()));
        return 1;
    }
    const bool english = arguments.value(3) == QStringLiteral("en");
    if (!Ecrire(QString::fromUtf8(source.readAll()), arguments.at(2), english)) {
        std::fprintf(stderr, "explications: %s could not be written\n", qPrintable(arguments.at(2)));
        return 1;
    }
    return 0;
}
