// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/rtf/rtf_reader.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::rtf {
namespace {

// Deeper groups still nest correctly but share their parent's format, so a hostile file
// cannot make the reader's stack grow without bound.
constexpr size_t kMaxDepth = 256;
constexpr int kMaxWordLength = 32;
constexpr int kMaxDigits = 10;
constexpr long long kMaxTwips = 31680;  // 22 inches, the widest page RTF knows
constexpr int kMinHalfPoints = 2;
constexpr int kMaxHalfPoints = 3276;

// Windows-1252 between 0x80 and 0x9F; the rest of the code page is Latin-1.
constexpr std::array<char16_t, 32> kWindows1252High{
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

QChar fromWindows1252(unsigned char byte) {
  if (byte >= 0x80 && byte < 0xA0) return QChar(kWindows1252High[byte - 0x80]);
  return QChar(byte);
}

// Groups whose text is not part of the page: tables, pictures, document information.
constexpr std::array<std::string_view, 24> kHiddenDestinations{
    "fonttbl", "colortbl",  "stylesheet", "info",         "pict",      "header",
    "headerl", "headerr",   "headerf",    "footer",       "footerl",   "footerr",
    "footerf", "footnote",  "fldinst",    "object",       "listtable", "listoverridetable",
    "rsidtbl", "generator", "xmlnstbl",   "latentstyles", "themedata", "datastore"};

struct Special {
  std::string_view word;
  char16_t character;
};
constexpr std::array<Special, 10> kSpecials{{{"bullet", 0x2022},
                                             {"emdash", 0x2014},
                                             {"endash", 0x2013},
                                             {"lquote", 0x2018},
                                             {"rquote", 0x2019},
                                             {"ldblquote", 0x201C},
                                             {"rdblquote", 0x201D},
                                             {"emspace", 0x2003},
                                             {"enspace", 0x2002},
                                             {"tab", u'\t'}}};

struct GroupState {
  CharFormat chars;
  ParagraphFormat para;
  bool hidden = false;
  int unicodeFallback = 1;  // characters that follow \uN for readers without Unicode
};

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  return (c | 0x20) - 'a' + 10;
}

int clampTwips(long long value) {
  return static_cast<int>(std::clamp(value, -kMaxTwips, kMaxTwips));
}

class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : in_(bytes) {}

  Document read() {
    while (!done_ && pos_ < in_.size()) step(in_[pos_++]);
    if (!current_.runs.empty()) endParagraph();
    return std::move(doc_);
  }

 private:
  void step(char c) {
    switch (c) {
      case '{': openGroup(); break;
      case '}': closeGroup(); break;
      case '\\': control(); break;
      case '\r':
      case '\n': break;
      default: text(fromWindows1252(static_cast<unsigned char>(c))); break;
    }
  }

  void openGroup() {
    fallbackLeft_ = 0;
    if (stack_.size() >= kMaxDepth) {
      ++flattened_;
      return;
    }
    stack_.push_back(state_);
  }

  void closeGroup() {
    fallbackLeft_ = 0;
    if (flattened_ > 0) {
      --flattened_;
      return;
    }
    if (stack_.empty()) {
      done_ = true;
      return;
    }
    state_ = stack_.back();
    stack_.pop_back();
    // The document is the first group; what follows its close is not part of it.
    if (stack_.empty()) done_ = true;
  }

  void control() {
    if (pos_ >= in_.size()) return;
    const char c = in_[pos_];
    if (std::isalpha(static_cast<unsigned char>(c))) {
      controlWord();
      return;
    }
    ++pos_;
    controlSymbol(c);
  }

  void controlSymbol(char c) {
    switch (c) {
      case '\\':
      case '{':
      case '}': text(QChar(c)); break;
      case '~': text(QChar(0x00A0)); break;
      case '_': text(QChar(u'-')); break;
      case '*': state_.hidden = true; break;
      case '\'': hexByte(); break;
      case '\r':
      case '\n': endParagraph(); break;
      default: break;  // optional hyphen and symbols the page does not show
    }
  }

  void hexByte() {
    int value = 0;
    int digits = 0;
    while (digits < 2 && pos_ < in_.size() && std::isxdigit(static_cast<unsigned char>(in_[pos_]))) {
      value = value * 16 + hexDigit(in_[pos_]);
      ++pos_;
      ++digits;
    }
    if (digits == 2) text(fromWindows1252(static_cast<unsigned char>(value)));
  }

  void controlWord() {
    std::string word;
    while (pos_ < in_.size() && std::isalpha(static_cast<unsigned char>(in_[pos_]))) {
      if (word.size() < kMaxWordLength) word += in_[pos_];
      ++pos_;
    }
    const std::optional<long long> param = number();
    if (pos_ < in_.size() && in_[pos_] == ' ') ++pos_;
    fallbackLeft_ = 0;
    apply(word, param);
  }

  std::optional<long long> number() {
    const bool negative = pos_ < in_.size() && in_[pos_] == '-';
    if (negative) ++pos_;
    long long value = 0;
    int digits = 0;
    while (pos_ < in_.size() && std::isdigit(static_cast<unsigned char>(in_[pos_]))) {
      if (digits++ < kMaxDigits) value = value * 10 + (in_[pos_] - '0');
      ++pos_;
    }
    if (digits == 0) return std::nullopt;
    return negative ? -value : value;
  }

  void apply(std::string_view word, std::optional<long long> param) {
    const bool on = !param || *param != 0;
    if (std::find(kHiddenDestinations.begin(), kHiddenDestinations.end(), word) !=
        kHiddenDestinations.end()) {
      state_.hidden = true;
    } else if (word == "par" || word == "sect" || word == "page" || word == "row") {
      endParagraph();
    } else if (word == "line") {
      text(QChar(QChar::LineSeparator));
    } else if (word == "cell") {
      text(QChar(u'\t'));
    } else if (word == "u" && param) {
      unicode(*param);
    } else if (word == "uc" && param) {
      state_.unicodeFallback = static_cast<int>(std::clamp<long long>(*param, 0, 8));
    } else if (word == "bin" && param) {
      pos_ += std::clamp<long long>(*param, 0, in_.size() - pos_);
    } else if (!charWord(word, param, on) && !paragraphWord(word, param)) {
      special(word);
    }
  }

  bool charWord(std::string_view word, std::optional<long long> param, bool on) {
    CharFormat& f = state_.chars;
    if (word == "b")
      f.bold = on;
    else if (word == "i")
      f.italic = on;
    else if (word == "ul")
      f.underline = on;
    else if (word == "ulnone")
      f.underline = false;
    else if (word == "plain")
      f = CharFormat{};
    else if (word == "fs")
      f.halfPoints =
          static_cast<int>(std::clamp<long long>(param.value_or(24), kMinHalfPoints, kMaxHalfPoints));
    else
      return false;
    return true;
  }

  bool paragraphWord(std::string_view word, std::optional<long long> param) {
    ParagraphFormat& p = state_.para;
    const int twips = clampTwips(param.value_or(0));
    if (word == "pard")
      p = ParagraphFormat{};
    else if (word == "ql")
      p.align = Align::Left;
    else if (word == "qc")
      p.align = Align::Center;
    else if (word == "qr")
      p.align = Align::Right;
    else if (word == "qj")
      p.align = Align::Justify;
    else if (word == "li")
      p.leftIndent = twips;
    else if (word == "ri")
      p.rightIndent = twips;
    else if (word == "fi")
      p.firstIndent = twips;
    else if (word == "sb")
      p.spaceBefore = twips;
    else if (word == "sa")
      p.spaceAfter = twips;
    else
      return false;
    return true;
  }

  void special(std::string_view word) {
    for (const Special& s : kSpecials) {
      if (s.word == word) {
        text(QChar(s.character));
        return;
      }
    }
  }

  void unicode(long long code) {
    if (code < 0) code += 65536;
    if (code > 0 && code <= 0xFFFF) text(QChar(static_cast<char16_t>(code)));
    fallbackLeft_ = state_.unicodeFallback;
  }

  void text(QChar c) {
    if (fallbackLeft_ > 0) {
      --fallbackLeft_;
      return;
    }
    if (state_.hidden || stack_.empty()) return;
    if (!current_.runs.empty() && current_.runs.back().format == state_.chars)
      current_.runs.back().text += c;
    else
      current_.runs.push_back({QString(c), state_.chars});
    if (++paragraphChars_ >= kMaxParagraphChars) endParagraph();
    if (++documentChars_ >= kMaxDocumentChars) done_ = true;
  }

  void endParagraph() {
    if (state_.hidden) return;
    current_.format = state_.para;
    doc_.paragraphs.push_back(std::move(current_));
    current_ = Paragraph{};
    paragraphChars_ = 0;
  }

  const QByteArray& in_;
  qsizetype pos_ = 0;
  std::vector<GroupState> stack_;
  GroupState state_;
  int flattened_ = 0;
  int fallbackLeft_ = 0;
  bool done_ = false;
  Document doc_;
  Paragraph current_;
  qsizetype paragraphChars_ = 0;
  qsizetype documentChars_ = 0;
};

}  // namespace

std::optional<Document> readRtf(const QByteArray& bytes) {
  if (!bytes.trimmed().startsWith("{\\rtf")) return std::nullopt;
  return Reader(bytes).read();
}

Document plainDocument(const QString& text) {
  Document doc;
  const QString kept = text.left(kMaxDocumentChars);
  for (QStringView line : QStringView(kept).split(u'\n')) {
    if (line.endsWith(u'\r')) line.chop(1);
    for (qsizetype at = 0; at == 0 || at < line.size(); at += kMaxParagraphChars)
      doc.paragraphs.push_back({{{line.mid(at, kMaxParagraphChars).toString(), {}}}, {}});
  }
  return doc;
}

}  // namespace platform::rtf
