#include "store/Textvergleich.h"

#include <algorithm>

namespace vemo {

int textVergleich(const QString& a, const QString& b) {
    return a.toCaseFolded().compare(b.toCaseFolded());
}

namespace {

bool nurAscii(const char* s, int länge) {
    return std::all_of(s, s + länge, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Most texts are ASCII: compared byte by byte as folded, without a conversion for each comparison.
int asciiVergleich(const char* a, int längeA, const char* b, int längeB) {
    const int gemeinsam = std::min(längeA, längeB);
    const int r = sqlite3_strnicmp(a, b, gemeinsam);
    return r != 0 ? r : längeA - längeB;
}

int sortierfolge(void*, int längeA, const void* a, int längeB, const void* b) {
    const auto* textA = static_cast<const char*>(a);
    const auto* textB = static_cast<const char*>(b);
    if (nurAscii(textA, längeA) && nurAscii(textB, längeB))
        return asciiVergleich(textA, längeA, textB, längeB);
    return textVergleich(QString::fromUtf8(textA, längeA), QString::fromUtf8(textB, längeB));
}

} // namespace

void textSortierfolgeAnmelden(sqlite3* db) {
    sqlite3_create_collation_v2(db, TextSortierfolge, SQLITE_UTF8, nullptr, sortierfolge, nullptr);
}

} // namespace vemo
