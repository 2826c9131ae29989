<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Voice Recorder</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Record</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Recordings</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>Record Audio</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Quick Create Voice Memo</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Recordings</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Recorded Voice Memos</translation>
    </message>
    <message id="Low">
        <source></source>
        <translation>Low</translation>
    </message>
    <message id="Medium">
        <source></source>
        <translation>Medium</translation>
    </message>
    <message id="High">
        <source></source>
        <translation>High</translation>
    </message>
    <message id="user_abc">
        <source></source>
        <translation>user_abc</translation>
    </message>
    <!-- Settings -->
    <message id="Settings">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Recording Type</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Recording Quality</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Audio Settings</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Cloud Sync</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Mail</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Data Security</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Support</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Features</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Extension</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Quality</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Rewind ( %1 Sec )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Forward ( %1 Sec )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium and High are English in every language, because recordings take their format from these words. So is what a slider shows after it was moved.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Sync Recordings with the Cloud</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Mail Recordings at Once</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Passcode Lock</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Change Passcode</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Rate This App</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>More Apps</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Report a Problem</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Problem Report: Voice Recorder</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Please describe what went wrong, and what you did just before:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Select Recording Audio Type</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Select Recording Audio Quality</translation>
    </message>
    <message id="M4a">
        <source></source>
        <translation>M4a</translation>
    </message>
    <message id="Wave">
        <source></source>
        <translation>Wave</translation>
    </message>
    <message id="Aac">
        <source></source>
        <translation>Aac</translation>
    </message>
    <message id="Mp4">
        <source></source>
        <translation>Mp4</translation>
    </message>
    <message id="Caf">
        <source></source>
        <translation>Caf</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Network Error</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Please check your internet connection</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Do You Like This Recorder?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>A rating helps others to find it. It takes a minute.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>No, Thanks</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Rate It Now</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Ask Me Later</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>No program on this computer opens pages of a software centre.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>No mail program took the report. Please write to %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>none</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Version: %1&#10;System: %2&#10;Sound server: %3&#10;Format: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Done</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Recording</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Paused</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Microphone Access Denied</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>This app needs your device's microphone to record. Please allow microphone access for it in the system settings.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Recording Failed</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>No Microphone</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>No audio input is available. Connect a microphone, then try again.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>This recording is larger than 25 MB and cannot be mailed.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Your Mail has been sent successfully</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>“%1” is not there any more.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>“%1” is no file that could be handed on.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>“%1” could not be opened in another program.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>The folder of “%1” could not be shown.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>There is no mail program.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>No mail program took the mail with “%1”.</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>“%1” is on the clipboard.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n recording is on the clipboard.</numerusform>
            <numerusform>%n recordings are on the clipboard.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Where “%1” is to go could not be asked: nothing was exported.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Exporting “%1”</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>The export of “%1” was cancelled.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>“%1” could not be exported: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>“%1” has been exported.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Show</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Replace “%1”?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>A file of this name is there already. What is in it will be lost.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Replace</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Export</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Home</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Folder above</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Folders</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>File name</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Export</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Show in Folder</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Copy the marked recording</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Export the marked recording</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Cloud Unavailable</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Please sign in to your cloud account to keep recordings in sync.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Voice Recording</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>The microphone was disconnected.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>There is no microphone to record from.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>There is nothing to play sound on.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>The rest of this recording cannot be read.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>No sound server is running.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>The sound server refused access.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>The sound server does not answer.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>The connection to the sound server was lost.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>A voice recording may be in progress</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>A voice recording is brought to the disk first</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>The recording is not saved yet</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Recordings</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Size</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Local Recordings</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Cloud Recordings</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Cloud Not Available</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Please set up your cloud in the settings.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Rename</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Open in</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Trim</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Upload to a drive</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Trim to M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Actions for %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>“%1” is no longer there.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Rename Recording</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>New name</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Not Renamed</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>A name cannot contain</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Not Renamed</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Type a name for the recording.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Not Renamed</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>There is already a recording of this name.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>“%1” keeps its name: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Delete Recording</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Delete “%1”?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>“%1” is in the trash.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Undo</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>“%1” is taken: it is back as “%2”.</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>“%1” could not be brought back: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>“%1” cannot be moved to the trash. Delete it for good?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Delete for Good</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>“%1” could not be deleted: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>aac File Cannot be trimmed</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>mp3 File Cannot be trimmed</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Del</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Rename the marked recording</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Delete the marked recording</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>All actions for the marked recording</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Tap the red button to record</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Saving…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Saving, then recording…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>No sound comes from the microphone. The recording goes on as soon as it does.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>The microphone is back. %1 s are missing from the recording.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Now recording from “%1”.</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>“%1” is not connected. Recording from “%2”.</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Microphone</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Default of the system</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Microphone</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>The computer slept: %1 are missing from the recording, which goes on.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>A recording was recovered: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n recording was recovered.</numerusform>
            <numerusform>%n recordings were recovered.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>The recording cannot be saved now. It is kept, and saved as soon as possible.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Recording Ended</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 What was recorded until then is kept.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>No recordings yet</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Whatever you record is kept here. Go to Record and tap the red button to make your first one.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Tabs</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Record</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Resume</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Stop and save</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Sound level</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Sort by %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Sorted by %1, ascending</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Sorted by %1, descending</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Find recordings</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>No recording has this in its name</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Saved as %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importing %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importing %n file</numerusform>
            <numerusform>Importing %n files</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 has been imported</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file has been imported</numerusform>
            <numerusform>%n files have been imported</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 has not been imported: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file has been imported, %1 not</numerusform>
            <numerusform>%n files have been imported, %1 not</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Details</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Not imported</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>The import was cancelled</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Drop sound files here to import them</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>there is a recording of that name already</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>it is a folder</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>it is no file that holds sound</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>it is not there any more</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>the disk is full</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>another program is writing it</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>it is not on this machine</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Show a smaller player</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Show the whole player</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Choose a recording to play it</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>It plays here, with its waveform, at the speed you like.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>This file cannot be played</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Stop playing</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Skip back, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Skip forward, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Half speed</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Normal speed</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Double speed</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Send the sound to the earpiece</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Send the sound to the loudspeaker</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Position</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 of %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Close the player</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Clear the search</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>playing</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>paused</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Trim</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Trim</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Edit again</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Reset</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Re-record</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Play the selection</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Reading the waveform…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>This recording cannot be read.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 s</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>Zoom</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>Zoom in</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Zoom out</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>All of the recording, and what of it is shown</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>%1 in all</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Saving the selection</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Stop recording</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Start of the selection</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>End of the selection</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Trim Audio</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Trim Audio</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Do you want to go on with the trimmed recording?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Trimming Audio</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Preview</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Processing</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Yes</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Return</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>The recording did not start</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Dismiss</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Keyboard Shortcuts</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>User Guide</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Record, pause, resume</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Stop and save</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Record, Recordings, Settings</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Find recordings</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Open the marked recording</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>First, last, a page on</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Play, pause</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Skip back, forward</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Slower, faster</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Trim the marked recording</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>In the trimmer: zoom in, zoom out</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Close the player or a sheet</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>This list</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Quit</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Space</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Enter</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Home, End, Page Up, Page Down</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>Saved as %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>The recording was interrupted. It is kept as %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Last: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Nothing has been heard for ten seconds. Is the microphone on?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Too loud</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>Format: %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>Microphone: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Play the last recording, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Enter your passcode</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Enter your old passcode</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Enter a new passcode</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Enter the new passcode again</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 of 4 digits entered</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Locked</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>No passcode is stored, so none can open this lock. The manual page of tavi says how to switch it off.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Your passcode is not stored yet</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>The passcode lock stays as it was</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>The settings cannot be written. Look whether the disk is full, and whether you may write to their folder.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>The passcode cannot be read yet. The desktop may be asking for the password of its keyring.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>The desktop’s keyring, which holds the passcode, is locked. Unlock it, and try again.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>The desktop’s keyring, which holds the passcode, does not answer. Start it, or log in again.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>The file that holds the passcode is damaged and is left as it is: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>The file that holds the passcode cannot be read or is not yours: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>The key to the file that holds the passcode is missing: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>The passcode lock could not store something, and keeps it until the program ends. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Passcode: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>this is not the passcode</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>The server does not answer.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>The server does not answer: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>The server is not trusted: %1 Nothing was sent.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>The folder is at another address now: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>There is no WebDAV folder at this address.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>The server refuses the user or the password.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>The folder is not on the server.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>The server is full.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>The server has too much to do.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>The server answers with status %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>The server has sent only a part.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>The server has not kept a file.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>The folder on the server has too many files.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>The cloud's journal cannot be written.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>The folder on the server is not the one that it was.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>It was interrupted.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 cannot be read.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 is still being written.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>The server does not say how long %1 is.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 was changed on two devices: both are kept.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 is looked for again.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>The address must begin with https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 is not in the cloud.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 is not in the cloud yet.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>There is a file of that name in the cloud.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>The server cannot be told now.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>The file is kept by another program.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>The server lets nothing be written there.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>The password cannot be had: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>The password cannot be kept: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Another process looks after the cloud now.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file is gone from the server all at once.</numerusform>
            <numerusform>%n files are gone from the server all at once.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>The cloud is no server.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>Say --remove-vanished to remove them here, too, or --keep-vanished to send them again.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Cloud</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Cloud account</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Account</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Where is your cloud?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Every recording that you save is copied there. Nothing on this device is moved or removed.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Disconnecting leaves all recordings where they are, here and in the cloud.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>A folder that another program syncs</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Choose the Cloud Folder</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>A WebDAV server</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Address, such as https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>User name</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Password</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Connect</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Testing the connection…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Place</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, as %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>State</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Last sync</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Not yet</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Off. Turn on the switch in the settings to sync.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Connected. Another program syncs this folder.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Syncing…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Everything is in the cloud.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Not in sync. It is tried again by itself.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Files missing from the server: %1. Nothing is removed here before you say so.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Sync Now</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Decide…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Disconnect</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Disconnect the Cloud?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 is no longer used, and its password is forgotten. All recordings stay, here and there.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Send Without Protection?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>The address begins with http://. Anyone on the way can read your recordings and your password.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Send Anyway</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Files Missing in the Cloud</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Files that are no longer on the server: %1. Should they go to the trash here, too, or be sent again?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Decide Later</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Send Again</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Move to Trash</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Choose</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Waiting to be sent</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Sending, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>In the cloud</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Only in the cloud. Tap to fetch it</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>On its way. Tap to ask again</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Another version. Both are kept</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Refreshing the cloud recordings</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Refresh the cloud recordings</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Not running</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Does not answer</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Locked</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Ready to record</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Recording, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Paused, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Record</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Continue</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Record or Pause</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Stop and Save</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Show Recordings</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Remove Icon</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>The recorder is not running.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>The recorder does not answer on this channel. Start it with the same --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>The icon is there already.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>There is no session bus, and without it no icon.</translation>
    </message>
</context>
</TS>
