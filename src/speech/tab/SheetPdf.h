#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

#include "speech/ReadingSheet.h"

// A reading sheet as a PDF to be printed, in A4: large letters, the voices with headings, a number
// before each text. On any thread. Empty when it cannot be made.
QByteArray sheetAsPdf(const ReadingSheet& sheet, const std::vector<SpeechText>& texts,
                      const QString& title);
