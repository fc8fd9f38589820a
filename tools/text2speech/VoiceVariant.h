#pragma once

// How espeak-ng is to sound: one of its voice variants, and a pitch from 0 to 99.
struct VoiceVariant
{
    const char* name;
    int pitch;
};

// Child (up to 12 years), young, adult (from 25) or old (from 60): the eight voices differ in
// timbre and each in its pitch.
VoiceVariant variantFor(bool female, int age);
