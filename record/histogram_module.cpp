// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include "record/histogram_plot.h"

namespace velquon {

std::unique_ptr<HistogramPlot> load_histogram_plot() {
  const QDir folder(QCoreApplication::applicationDirPath());
  // Installed; of a build; of a build, for the programs of its tests.
  for (const char* const place : {"../lib/velquon/modules", "../record", "../../record"}) {
    const QString path =
        folder.filePath(QLatin1String(place) + QLatin1String("/libvelquon-histogram.so"));
    const auto make =
        reinterpret_cast<HistogramPlotMaker>(QLibrary::resolve(path, histogram_plot_maker));
    if (make != nullptr) {
      return std::unique_ptr<HistogramPlot>(make());
    }
  }
  return nullptr;
}

}  // namespace velquon
