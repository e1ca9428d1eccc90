// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_pages.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <array>

namespace velquon {

namespace {

/// The pages in the order of reading, by their paths in the guide's folder.
constexpr std::array names{"guide.md",
                           "laboratory/contents.md",
                           "laboratory/curvature.md",
                           "laboratory/pairs.md",
                           "laboratory/kink.md",
                           "laboratory/decay_lengths.md",
                           "laboratory/lambda.md",
                           "laboratory/teacher.md"};

GuidePage read_page(const QString& path) {
  GuidePage page;
  page.url = QUrl(QStringLiteral("qrc") + path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return page;
  }
  QTextDocument document;
  document.setMarkdown(QString::fromUtf8(file.readAll()));
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (const int level = block.blockFormat().headingLevel(); level > 0) {
      page.headings.push_back({block.text(), level, block.blockNumber()});
    }
  }
  page.text = document.toRawText();
  return page;
}

}  // namespace

std::vector<GuidePage> read_guide_pages(const QString& language) {
  std::vector<GuidePage> pages;
  std::ranges::transform(names, std::back_inserter(pages), [&](const char* name) {
    const QString translated = QStringLiteral(":/docs/%1/%2").arg(language, QLatin1String(name));
    return read_page(QFile::exists(translated) ? translated
                                               : QStringLiteral(":/docs/") + QLatin1String(name));
  });
  return pages;
}

std::size_t page_at(const std::vector<GuidePage>& pages, const QUrl& url) {
  const auto found = std::ranges::find(pages, url.adjusted(QUrl::RemoveFragment), &GuidePage::url);
  return static_cast<std::size_t>(found - pages.begin());
}

}  // namespace velquon
