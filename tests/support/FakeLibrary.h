#pragma once

#include "library/VoiceMemoVC.h"
#include "support/FakeServices.h"
#include "support/FakeSharing.h"

namespace tavi::test {

/// A library screen with all that it needs.
struct FakeLibrary {
    FakeLibrary(FakeServices& fakes, const AudioDuration& lengths, Presenter& presenter, Notices& notices)
        : lister(lengths, fakes.runLoop),
          shapes(fakes.files, fakes.runLoop),
          waveforms({.files = fakes.files, .converters = fakes.converters, .queues = fakes.runLoop}),
          player({.players = fakes.players,
                  .session = fakes.session,
                  .remoteControl = fakes.remote,
                  .settings = fakes.settings,
                  .notices = notices,
                  .runLoop = fakes.runLoop,
                  .waveforms = waveforms}),
          table({.settings = fakes.settings, .container = fakes.container, .lister = lister, .shapes = shapes}),
          trash(fakes.container.root() / ".Trash"),
          exporter({.documentPicker = picker,
                    .presenter = presenter,
                    .notices = notices,
                    .notifications = fakes.notifications,
                    .container = fakes.container,
                    .runLoop = fakes.runLoop}),
          sharing({.docController = documents,
                   .picker = mail,
                   .pasteboard = pasteboard,
                   .presenter = presenter,
                   .notices = notices,
                   .runLoop = fakes.runLoop,
                   .exporter = exporter}),
          audioTrims({.exports = fakes.assets,
                      .readers = fakes.assets,
                      .players = fakes.players,
                      .settings = fakes.settings,
                      .container = fakes.container,
                      .presenter = presenter,
                      .notices = notices,
                      .runLoop = fakes.runLoop,
                      .cloud = fakes.cloud}),
          actions({.table = table,
                   .settings = fakes.settings,
                   .cloud = fakes.cloud,
                   .sharing = sharing,
                   .trash = trash,
                   .trimmers = fakes.trimmers,
                   .audioTrims = audioTrims,
                   .presenter = presenter,
                   .notices = notices,
                   .runLoop = fakes.runLoop}),
          vc({.settings = fakes.settings,
              .notifications = fakes.notifications,
              .remoteControl = fakes.remote,
              .notices = notices,
              .cloud = fakes.cloud},
             table, player, actions) {}

    RecordingLister lister;
    RecordingShapes shapes;
    WaveformLoader waveforms;
    PlayerPanel player;
    RecordingTable table;
    FakeTrash trash;
    FakeDocumentInteraction documents;
    FakeDocumentPicker picker;
    FakeMailComposer mail;
    FakePasteboard pasteboard;
    RecordingExport exporter;
    RecordingSharing sharing;
    AudioTrimStage audioTrims;
    RecordingActions actions;
    VoiceMemoVC vc;
};

}  // namespace tavi::test
