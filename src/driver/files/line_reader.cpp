#include "driver/files/line_reader.h"

namespace quillmark {

int LineReader::peekByte() {
    if (pos_ == filled_) {
        filled_ = file_.read(buffer_);
        pos_ = 0;
    }
    return pos_ == filled_ ? endOfFile : static_cast<unsigned char>(buffer_[pos_]);
}

int LineReader::firstCharacter() {
    static_cast<void>(peekByte());
    const std::string_view start(buffer_.data(), filled_);
    if (start.starts_with(encoding_.byteOrderMark())) {
        pos_ = encoding_.byteOrderMark().size();
    }
    return readCharacter();
}

int LineReader::readCharacter() {
    const int byte = peekByte();
    if (byte == endOfFile) {
        return endOfFile;
    }
    ++pos_;
    if (byte == '\r' && peekByte() == '\n') {
        ++pos_;
        return '\n';
    }
    return byte;
}

bool LineReader::next(std::string& line) {
    line.clear();
    if (ahead_ == endOfFile) {
        return false;
    }
    std::size_t characters = 0;
    while (ahead_ != endOfFile && ahead_ != '\n') {
        characters += encoding_.beginsCharacter(static_cast<unsigned char>(ahead_)) ? 1 : 0;
        if (characters > longest) {
            break;
        }
        line.push_back(static_cast<char>(ahead_));
        ahead_ = readCharacter();
    }
    if (ahead_ == '\n') {
        ahead_ = readCharacter();
    }
    return true;
}

}  // namespace quillmark
