// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/pdf_page.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTransform>
#include <QtEndian>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace velquon::test {

namespace {

constexpr int pixels_per_point = 4;

/// Carries out the operators of a page that draw lines and areas; the others are passed over.
class PageReader {
 public:
  explicit PageReader(PdfPage& page) : page_(page) {}

  void read(const std::string& operators) {
    std::istringstream words(operators);
    for (std::string word; words >> word;) {
      std::istringstream text(word);
      double number = 0.0;
      if (text >> number && text.eof()) {
        operands_.push_back(number);
      } else {
        carry_out(word);
        operands_.clear();
      }
    }
  }

 private:
  struct State {
    QTransform matrix;
    PaperColor stroke{};
    PaperColor fill{};
  };

  void carry_out(const std::string& name) {
    if (name == "q") {
      saved_.push_back(state_);
    } else if (name == "Q") {
      restore();
    } else if (name == "cm") {
      state_.matrix = QTransform(at(0), at(1), at(2), at(3), at(4), at(5)) * state_.matrix;
    } else if (name == "SCN" && operands_.size() == 3) {
      state_.stroke = {at(0), at(1), at(2)};
    } else if (name == "scn" && operands_.size() == 3) {
      state_.fill = {at(0), at(1), at(2)};
    } else {
      build_path(name);
    }
  }

  void build_path(const std::string& name) {
    if (name == "m" || name == "l") {
      corners_.push_back(state_.matrix.map(QPointF(at(0), at(1))));
    } else if (name == "re") {
      rectangles_.push_back(state_.matrix.mapRect(QRectF(at(0), at(1), at(2), at(3))));
    } else if (name == "S") {
      stroke();
    } else if (name == "f" || name == "f*") {
      fill();
    } else if (name == "n") {
      end_path();
    }
  }

  void stroke() {
    for (std::size_t i = 1; i < corners_.size(); ++i) {
      page_.lines.push_back({corners_[i - 1], corners_[i], state_.stroke});
    }
    end_path();
  }

  void fill() {
    const bool is_rectangle = corners_.empty() && rectangles_.size() == 1;
    if (is_rectangle) {
      page_.rectangles.push_back({rectangles_.front(), state_.fill});
    } else {
      ++page_.other_fills;
    }
    end_path();
  }

  void end_path() {
    corners_.clear();
    rectangles_.clear();
  }

  void restore() {
    if (saved_.empty()) {
      throw std::runtime_error("the page restores more states than it saved");
    }
    state_ = saved_.back();
    saved_.pop_back();
  }

  double at(std::size_t i) const { return operands_.at(i); }

  PdfPage& page_;
  State state_;
  std::vector<State> saved_;
  std::vector<double> operands_;
  std::vector<QPointF> corners_;
  std::vector<QRectF> rectangles_;
};

/// Takes the compression off a stream; empty when it has none.
QByteArray unpacked(const QByteArray& stream) {
  // qUncompress wants the unpacked length first, which need not be right.
  QByteArray sized(4, '\0');
  qToBigEndian<quint32>(static_cast<quint32>(stream.size() * 8), sized.data());
  return qUncompress(sized + stream);
}

/// The drawing operators of each page: the streams of the document that set a matrix.
std::vector<QByteArray> page_streams(const QByteArray& document) {
  const QByteArray opening("stream\n");
  const QByteArray closing("endstream");
  std::vector<QByteArray> pages;
  for (auto start = document.indexOf(opening); start >= 0;
       start = document.indexOf(opening, start + 1)) {
    const auto begin = start + opening.size();
    const auto end = document.indexOf(closing, begin);
    const bool is_closing = start >= 3 && document.mid(start - 3, 3) == "end";
    if (is_closing || end < 0) {
      continue;
    }
    QByteArray bytes = unpacked(document.mid(begin, end - begin));
    if (bytes.contains(" cm\n")) {
      pages.push_back(bytes);
    }
  }
  if (pages.empty()) {
    throw std::runtime_error("the document has no page");
  }
  return pages;
}

QSizeF paper_size(const QByteArray& document) {
  static const QRegularExpression box(QStringLiteral(R"(/MediaBox \[0 0 ([0-9.]+) ([0-9.]+)\])"));
  const auto match = box.match(QString::fromLatin1(document));
  return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

}  // namespace

PdfPage read_pdf(const QByteArray& document) {
  return read_pdf_pages(document).front();
}

std::vector<PdfPage> read_pdf_pages(const QByteArray& document) {
  std::vector<PdfPage> pages;
  for (const QByteArray& operators : page_streams(document)) {
    PdfPage& page = pages.emplace_back();
    page.paper = paper_size(document);
    page.operators = operators.toStdString();
    PageReader(page).read(page.operators);
  }
  return pages;
}

std::set<std::string> line_styles_of(const PdfPage& page) {
  std::set<std::string> styles;
  std::istringstream words(page.operators);
  std::string last;
  for (std::string word; words >> word; last = word) {
    if (word == "J" || word == "j") {
      styles.insert(std::move(last).append(1, ' ').append(word));
    }
  }
  return styles;
}

QString title_of_pdf(const QString& path) {
  QProcess tool;
  tool.start(QStringLiteral("pdfinfo"), {path});
  if (!tool.waitForFinished() || tool.exitCode() != 0) {
    throw std::runtime_error("pdfinfo did not read the document");
  }
  static const QRegularExpression title(QStringLiteral("^Title: *(.*)$"),
                                        QRegularExpression::MultilineOption);
  return title.match(QString::fromUtf8(tool.readAllStandardOutput())).captured(1);
}

QImage picture_of_pdf(const QString& path) {
  QProcess tool;
  tool.start(QStringLiteral("pdftoppm"),
             {QStringLiteral("-r"), QString::number(72 * pixels_per_point),
              QStringLiteral("-singlefile"), path});
  if (!tool.waitForFinished() || tool.exitCode() != 0) {
    throw std::runtime_error("pdftoppm did not draw the page");
  }
  return QImage::fromData(tool.readAllStandardOutput()).convertToFormat(QImage::Format_RGB32);
}

int ink_in(const QImage& picture, const QRectF& area) {
  const int top = picture.height() - qRound(area.bottom() * pixels_per_point);
  const int left = qRound(area.left() * pixels_per_point);
  int count = 0;
  for (int y = top; y < top + qRound(area.height() * pixels_per_point); ++y) {
    for (int x = left; x < left + qRound(area.width() * pixels_per_point); ++x) {
      count += picture.valid(x, y) && picture.pixel(x, y) != 0xFFFFFFFF ? 1 : 0;
    }
  }
  return count;
}

std::vector<PaperWord> words_of_pdf(const QString& path) {
  QProcess tool;
  tool.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
  if (!tool.waitForFinished() || tool.exitCode() != 0) {
    throw std::runtime_error("pdftotext did not read the page");
  }
  const QString text = QString::fromUtf8(tool.readAllStandardOutput());
  static const QRegularExpression page(
      QStringLiteral(R"re(<page width="[^"]*" height="([^"]*)")re"));
  static const QRegularExpression word(QStringLiteral(
      R"re(<word xMin="([^"]*)" yMin="[^"]*" xMax="[^"]*" yMax="([^"]*)">([^<]*)</word>)re"));
  const double height = page.match(text).captured(1).toDouble();
  std::vector<PaperWord> words;
  for (const auto& match : word.globalMatch(text)) {
    words.push_back(
        {match.captured(3), {match.captured(1).toDouble(), height - match.captured(2).toDouble()}});
  }
  return words;
}

}  // namespace velquon::test
