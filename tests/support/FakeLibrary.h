#pragma once

#include "library/VoiceMemoVC.h"
#include "support/FakeCloudConnection.h"
#include "support/FakeServices.h"
#include "support/FakeSharing.h"

namespace tavi::test {

/// A library screen with all that it needs.
struct FakeLibrary {
    FakeServices& fakes;
    Presenter& presenter = fakes.presenter;
    Notices& notices = fakes.notices;

    FakeCloudConnection connection{fakes.runLoop};
    FakeReachability reachability{};
    RecordingLister lister{fakes.durations, fakes.runLoop};
    RecordingLister cloudLister{fakes.durations, fakes.runLoop};
    RecordingShapes shapes{fakes.files, fakes.runLoop};
    WaveformLoader waveforms{{fakes.files, fakes.converters, fakes.runLoop}};
    PlayerPanel player{{fakes.players, fakes.session, fakes.remote, fakes.settings, notices, fakes.runLoop, waveforms}};
    RecordingTable table{{fakes.settings, fakes.container, lister, cloudLister, shapes}};
    FakeTrash trash{fakes.container.root() / ".Trash"};
    FakeDocumentInteraction documents{};
    FakeDocumentPicker picker{};
    FakeMailComposer mail{};
    FakePasteboard pasteboard{};
    RecordingExport exporter{{picker, presenter, notices, fakes.notifications, fakes.container, fakes.runLoop}};
    RecordingSharing sharing{{documents, mail, pasteboard, presenter, notices, fakes.runLoop, exporter}};
    AudioTrimStage audioTrims{{fakes.assets, fakes.assets, fakes.players, fakes.settings, fakes.container, presenter,
                               notices, fakes.runLoop, fakes.cloud}};
    RecordingActions actions{{table, fakes.settings, fakes.cloud, sharing, trash, fakes.trimmers, audioTrims, presenter,
                              notices, fakes.runLoop}};
    CloudSection section{
        {fakes.cloud, connection, table, fakes.settings, fakes.container, fakes.runLoop, presenter, reachability}};
    VoiceMemoVC vc{{fakes.settings, fakes.notifications, fakes.remote, notices}, table, player, actions, section};
};

}  // namespace tavi::test
