#include "SimDetect/TextFormat.h"

#include <cstddef>
#include <cstdint>

using Quillmont::SimDetect::TextFormat;

namespace {

void expect(bool holds)
{
    if (!holds)
        __builtin_trap();
}

// Goes through all of it. Each step takes at least one byte, so there are no more than bytes.
void readEverything(const QByteArray &bytes)
{
    TextFormat text(bytes);
    int level = 0;
    int steps = 0;
    while (level >= 0 && !text.isBroken()) {
        expect(++steps <= bytes.size() + 1);
        if (!text.next()) {
            --level;
        } else if (text.isBlock()) {
            ++level;
            expect(text.value().isEmpty());
        }
        expect(level <= 64 && text.key().size() <= 65536);
    }
    expect(!text.next() || !text.isBroken());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    readEverything(bytes);

    TextFormat skipped(bytes);
    while (skipped.next())
        skipped.skip();
    TextFormat entered(bytes);
    expect(!entered.enter("AppState") || entered.isBlock());
    return 0;
}
