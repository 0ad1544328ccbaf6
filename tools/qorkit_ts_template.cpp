// Writes the Qt Linguist template of every library text: qorkit_ts_template [FILE]
// (standard output without FILE). The build target qorkit_ts regenerates
// translations/qorkit_en.ts with it.
#include "QORKITTranslation.h"

#include <QFile>
#include <QSaveFile>
#include <QString>

#include <cstdio>

int main(int argc, char** argv)
{
    const QByteArray text = qorkit::TranslationTemplate();
    if (argc < 2) {
        QFile out;
        if (!out.open(stdout, QIODevice::WriteOnly) || out.write(text) != text.size())
            return 1;
        return 0;
    }
    QSaveFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        std::fprintf(stderr, "qorkit_ts_template: cannot write %s: %s\n", argv[1],
                     qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
