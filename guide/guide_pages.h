// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QUrl>
#include <vector>

namespace velquon {

/// A heading of a page of the guide.
struct GuideHeading {
  QString text;
  int level = 1;  ///< 1 is the page's own
  int block = 0;  ///< number of its block in the page's document
};

/// A page of the guide.
struct GuidePage {
  QUrl url;
  QString text;  ///< without marks; each character stands where it stands in the page's document
  std::vector<GuideHeading> headings;  ///< in their order; the first is the page's title
};

/// Reads the pages of the guide and of its laboratory.
/// \param language code such as "de"; a page that is not translated is read in English
/// \return the pages in the order of reading
[[nodiscard]] std::vector<GuidePage> read_guide_pages(const QString& language);

/// \param url of the page or of a place in it
/// \return the page with the address, an index, or the number of pages when there is none
[[nodiscard]] std::size_t page_at(const std::vector<GuidePage>& pages, const QUrl& url);

}  // namespace velquon
