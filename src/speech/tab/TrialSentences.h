#pragma once

#include <QString>

// A sentence in which one hears what a voice is like, in a language that a voice can have ("de",
// "de-at"); in English for those that we do not speak.
QString trialSentence(const QString& language);

// "de" of "de-at" and of "de": those that have one sentence.
QString baseLanguage(const QString& language);
