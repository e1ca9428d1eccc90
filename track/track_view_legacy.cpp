// What the track view did before it had the step timer. No path of the program leads here.

#include <QDebug>
#include <QTimer>

#include "track/new_track_view.h"

namespace velquon {

namespace {

constexpr double Bset = 0.0;  // the field of the old slider

constexpr TrackStart legacy_start{.y = 235.0, .time_interval = 0.25};

}  // namespace

void NewTrackView::sliderSet() {
  takeField(Bset);
  if (is_tracking()) {
    TrackWithTimer(trackTimer_.get());
  }
}

void NewTrackView::goAhead(QAction* /*sender*/) {
  pause_ = false;
}

void NewTrackView::TestTimer(QTimer* timer) {
  qInfo("timer fired");
  timer->stop();
}

void NewTrackView::OldtrackOnScreen() {
  simulation_.enter(legacy_start);
  picture_lost_ = true;
  while (simulation_.isInLegacyArea() && is_tracking()) {
    pause_ = true;
    step();
  }
  endRun();
}

}  // namespace velquon
