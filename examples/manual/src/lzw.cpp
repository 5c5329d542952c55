#include "lzw.h"

#include <map>
#include <utility>

namespace quillmark::manual {

namespace {

constexpr unsigned mostCodes = 4096;

class BitWriter {
public:
    void add(unsigned code, int width) {
        pending_ |= code << pendingBits_;
        pendingBits_ += width;
        while (pendingBits_ >= 8) {
            takeByte();
        }
    }
    std::string finish() {
        if (pendingBits_ > 0) {
            takeByte();
        }
        return std::move(bytes_);
    }

private:
    void takeByte() {
        bytes_ += static_cast<char>(pending_ & 0xff);
        pending_ >>= 8;
        pendingBits_ -= 8;
    }

    std::string bytes_;
    unsigned pending_ = 0;
    int pendingBits_ = 0;
};

/// The runs seen so far: a known run and the index behind it give the longer run's code.
class Dictionary {
public:
    explicit Dictionary(int codeBits) : codeBits_(codeBits) { clear(); }

    void clear() {
        runs_.clear();
        next_ = endCode() + 1;
        width_ = codeBits_ + 1;
    }
    [[nodiscard]] unsigned clearCode() const { return 1U << codeBits_; }
    [[nodiscard]] unsigned endCode() const { return clearCode() + 1; }
    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] bool isFull() const { return next_ == mostCodes; }

    bool find(unsigned run, unsigned index, unsigned& code) const {
        const auto found = runs_.find({run, index});
        if (found == runs_.end()) {
            return false;
        }
        code = found->second;
        return true;
    }
    void add(unsigned run, unsigned index) {
        runs_[{run, index}] = next_;
        if (next_ == 1U << width_) {
            ++width_;
        }
        ++next_;
    }

private:
    int codeBits_;
    int width_ = 0;
    unsigned next_ = 0;
    std::map<std::pair<unsigned, unsigned>, unsigned> runs_;
};

}  // namespace

std::string packLzw(const std::vector<std::uint8_t>& indices, int codeBits) {
    Dictionary dictionary(codeBits);
    BitWriter bits;
    bits.add(dictionary.clearCode(), dictionary.width());
    unsigned run = indices.empty() ? dictionary.endCode() : indices.front();
    for (std::size_t i = 1; i < indices.size(); ++i) {
        const unsigned index = indices[i];
        if (dictionary.find(run, index, run)) {
            continue;
        }
        bits.add(run, dictionary.width());
        if (dictionary.isFull()) {
            bits.add(dictionary.clearCode(), dictionary.width());
            dictionary.clear();
        } else {
            dictionary.add(run, index);
        }
        run = index;
    }
    bits.add(run, dictionary.width());
    if (!indices.empty()) {
        bits.add(dictionary.endCode(), dictionary.width());
    }
    return bits.finish();
}

}  // namespace quillmark::manual
