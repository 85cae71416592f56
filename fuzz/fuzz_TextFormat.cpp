#include "SimDetect/Steam/TextFormat.h"
#include "fuzz/Expect.h"

#include <cstddef>
#include <cstdint>

using Fuzz::expect;
using Quillmont::SimDetect::TextFormat;

namespace {

// Reads the whole text. Each step takes at least one byte, which limits the number of steps.
void readEverything(const QByteArray &bytes)
{
    TextFormat text(bytes);
    int level = 0;
    int steps = 0;
    while (level >= 0 && !text.isBroken()) {
        expect(++steps <= bytes.size() + 1, "each step takes a byte");
        if (!text.next()) {
            --level;
        } else if (text.isBlock()) {
            ++level;
            expect(text.value().isEmpty(), "a block has no value");
        }
        expect(level <= 64 && text.key().size() <= 65536, "levels and keys have their limits");
    }
    expect(!text.next() || !text.isBroken(), "a broken text stays so");
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
    expect(!entered.enter("AppState") || entered.isBlock(), "an entered entry is a block");
    return 0;
}
