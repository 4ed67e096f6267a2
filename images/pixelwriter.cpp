// SPDX-License-Identifier: GPL-3.0-or-later
// Runs during the build: pixelwriter PICTURE OUTPUT writes logo() for the decoded picture.
#include <QFile>
#include <QImage>
#include <QTextStream>

#include <cstdlib>

int main(int argc, char **argv)
{
    QFile output(argc == 3 ? QFile::decodeName(argv[2]) : QString());
    // The format in which a pixmap of the raster engine keeps a picture with transparency.
    const QImage picture = QImage(argc == 3 ? QFile::decodeName(argv[1]) : QString())
                               .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull() || !output.open(QIODevice::WriteOnly)) {
        return EXIT_FAILURE;
    }
    QTextStream text(&output);
    text << "#include \"images/logo.h\"\n\n"
         << "static const unsigned pixels[] = {\n";
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            text << line[x] << "u,";
        }
        text << "\n";
    }
    text << "};\n\n"
         << "QPixmap logo()\n{\n"
         << "    return QPixmap::fromImage(QImage(reinterpret_cast<const uchar *>(pixels), "
         << picture.width() << ", " << picture.height() << ", QImage::Format_ARGB32_Premultiplied));\n}\n";
    text.flush();
    return output.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
