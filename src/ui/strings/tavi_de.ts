<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Sprachrekorder</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Aufnahme</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Aufnahmen</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Einstellungen</translation>
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
        <translation>Ton aufnehmen</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Schnell eine Aufnahme beginnen</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Aufnahmen</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Gespeicherte Aufnahmen</translation>
    </message>
    <!-- These three stay as they are: recordings take their format from the words themselves. -->
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
        <translation>Einstellungen</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Art der Aufnahme</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Qualität der Aufnahme</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Cloud</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>E-Mail</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Datenschutz</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Hilfe</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Funktionen</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Dateiendung</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Qualität</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Zurück ( %1 Sek )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Vor ( %1 Sek )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium und High sind in jeder Sprache englisch, denn aus diesen Wörtern ergibt sich das Format der Aufnahme. Englisch ist auch, was ein bewegter Regler zeigt.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Aufnahmen in die Cloud spiegeln</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Aufnahmen sofort mailen</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Code-Sperre</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Code ändern</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>App bewerten</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Weitere Apps</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Problem melden</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Problembericht: Sprachrekorder</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Bitte beschreiben Sie, was nicht funktioniert hat und was Sie unmittelbar davor getan haben:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Art der Aufnahme wählen</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Qualität der Aufnahme wählen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Netzwerkfehler</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Bitte prüfen Sie Ihre Internetverbindung</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Gefällt Ihnen dieser Rekorder?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Eine Bewertung hilft anderen, ihn zu finden. Sie dauert eine Minute.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Nein, danke</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Jetzt bewerten</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Später fragen</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Kein Programm auf diesem Rechner öffnet Seiten einer Softwareverwaltung.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Kein Mailprogramm hat den Bericht angenommen. Bitte schreiben Sie an %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>keiner</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Version: %1&#10;System: %2&#10;Tonserver: %3&#10;Format: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Fertig</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Pausiert</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Kein Zugriff auf das Mikrofon</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Zum Aufnehmen braucht die App das Mikrofon dieses Geräts. Bitte erlauben Sie ihr den Zugriff in den Systemeinstellungen.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Aufnahme fehlgeschlagen</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Kein Mikrofon</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Es ist kein Toneingang da. Schließen Sie ein Mikrofon an und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Fehler</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Diese Aufnahme ist größer als 25 MB und kann nicht gemailt werden.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Die Mail wurde gesendet</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>„%1“ ist keine Datei, die sich weitergeben lässt.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>„%1“ ließ sich in keinem anderen Programm öffnen.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Der Ordner von „%1“ ließ sich nicht anzeigen.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Es gibt kein Mailprogramm.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Kein Mailprogramm hat die Mail mit „%1“ angenommen.</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>„%1“ liegt in der Zwischenablage.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Aufnahme liegt in der Zwischenablage.</numerusform>
            <numerusform>%n Aufnahmen liegen in der Zwischenablage.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Wohin „%1“ soll, konnte nicht gefragt werden: Nichts wurde exportiert.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>„%1“ wird exportiert</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>Der Export von „%1“ wurde abgebrochen.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>„%1“ konnte nicht exportiert werden: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>„%1“ wurde exportiert.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Anzeigen</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Eine Datei dieses Namens gibt es schon. Ihr Inhalt geht verloren.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Ersetzen</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Exportieren</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Dateiname</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Exportieren</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Die markierte Aufnahme kopieren</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Die markierte Aufnahme exportieren</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Cloud nicht verfügbar</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Bitte melden Sie sich bei Ihrer Cloud an, damit die Aufnahmen gespiegelt werden.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Sprachaufnahme</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Das Mikrofon wurde getrennt.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Es gibt kein Mikrofon, von dem aufgenommen werden kann.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Es gibt nichts, worauf Ton abgespielt werden kann.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Der Rest dieser Aufnahme kann nicht gelesen werden.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Es läuft kein Soundserver.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Der Soundserver hat den Zugriff verweigert.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Der Soundserver antwortet nicht.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>Die Verbindung zum Soundserver ging verloren.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Möglicherweise läuft eine Sprachaufnahme</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Eine Sprachaufnahme wird zuvor auf die Platte gebracht</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>Die Aufnahme ist noch nicht gespeichert</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Aufnahmen</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Datum</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Größe</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Lokale Aufnahmen</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Aufnahmen in der Cloud</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Cloud nicht verfügbar</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Bitte richten Sie Ihre Cloud in den Einstellungen ein.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Umbenennen</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Öffnen mit</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Auf ein Laufwerk laden</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Zu M4A zuschneiden</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Aktionen für %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Aufnahme umbenennen</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Neuer Name</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Nicht umbenannt</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Ein Name darf eines nicht enthalten:</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Nicht umbenannt</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Bitte einen Namen für die Aufnahme eingeben.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Nicht umbenannt</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Es gibt schon eine Aufnahme mit diesem Namen.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>„%1“ behält seinen Namen: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Aufnahme löschen</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>„%1“ ist im Papierkorb.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Rückgängig</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>„%1“ ist vergeben: Die Aufnahme ist als „%2“ zurück.</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>„%1“ konnte nicht zurückgeholt werden: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>„%1“ kann nicht in den Papierkorb. Endgültig löschen?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Endgültig löschen</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>„%1“ konnte nicht gelöscht werden: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Eine aac-Datei kann nicht zugeschnitten werden</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Eine mp3-Datei kann nicht zugeschnitten werden</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Entf</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menü</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Die markierte Aufnahme umbenennen</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Die markierte Aufnahme löschen</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Alle Aktionen für die markierte Aufnahme</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Zum Aufnehmen den roten Knopf antippen</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Wird gespeichert…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Wird gespeichert, dann wird aufgenommen…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Vom Mikrofon kommt kein Ton. Die Aufnahme geht weiter, sobald er wieder da ist.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Das Mikrofon ist wieder da. In der Aufnahme fehlen %1 s.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Aufgenommen wird jetzt von „%1“.</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>„%1“ ist nicht angeschlossen. Aufgenommen wird von „%2“.</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Standard des Systems</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>Der Rechner hat geschlafen: In der Aufnahme fehlen %1, sie geht weiter.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Eine Aufnahme wurde gerettet: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Aufnahme wurde gerettet.</numerusform>
            <numerusform>%n Aufnahmen wurden gerettet.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>Die Aufnahme lässt sich jetzt nicht speichern. Sie bleibt erhalten und wird so bald wie möglich gespeichert.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Aufnahme beendet</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 Was bis dahin aufgenommen wurde, bleibt erhalten.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Noch keine Aufnahmen</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Was Sie aufnehmen, wird hier aufbewahrt. Gehen Sie zu „Aufnahme“ und tippen Sie auf den roten Knopf, um anzufangen.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Reiter</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Aufnehmen</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Fortsetzen</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Anhalten und speichern</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Lautstärke des Tons</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Nach %1 sortieren</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Nach %1 sortiert, aufsteigend</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Nach %1 sortiert, absteigend</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Aufnahmen suchen</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Keine Aufnahme hat das in ihrem Namen</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>%1 wird importiert</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Datei wird importiert</numerusform>
            <numerusform>%n Dateien werden importiert</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 wurde importiert</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Datei wurde importiert</numerusform>
            <numerusform>%n Dateien wurden importiert</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 wurde nicht importiert: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Datei wurde importiert, %1 nicht</numerusform>
            <numerusform>%n Dateien wurden importiert, %1 nicht</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Details</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Nicht importiert</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>Der Import wurde abgebrochen</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Tondateien hier ablegen, um sie zu importieren</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>es gibt schon eine Aufnahme mit diesem Namen</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>es ist keine Datei mit Ton</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>sie ist nicht mehr da</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>ein anderes Programm schreibt gerade hinein</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>sie liegt nicht auf diesem Gerät</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Abspielen</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Stopp</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Tempo</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Spieler verkleinern</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Ganzen Spieler zeigen</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Wählen Sie eine Aufnahme, um sie zu hören</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Sie wird hier abgespielt, mit ihrer Wellenform und so schnell, wie Sie möchten.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Diese Datei kann nicht abgespielt werden</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Abspielen</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Wiedergabe anhalten</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Zurückspringen, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Vorspringen, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Halbes Tempo</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Normales Tempo</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Doppeltes Tempo</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Ton an die Hörmuschel geben</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Ton an den Lautsprecher geben</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Stelle</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 von %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Wiedergabe schließen</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Suche leeren</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>läuft</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>pausiert</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Fertig</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Noch einmal bearbeiten</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Neuaufnahme</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Auswahl abspielen</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Die Wellenform wird gelesen…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Diese Aufnahme kann nicht gelesen werden.</translation>
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
        <translation>Vergrößern</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Verkleinern</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Die ganze Aufnahme, und was davon zu sehen ist</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>gesamt %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Auswahl wird gesichert</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Aufnahme anhalten</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Anfang der Auswahl</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Ende der Auswahl</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Ton zuschneiden</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Ton zuschneiden</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Möchten Sie mit der zugeschnittenen Aufnahme weitermachen?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Der Ton wird zugeschnitten</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Anhören</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>In Arbeit</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Ja</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Nein</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>Die Aufnahme hat nicht begonnen</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Tastenkürzel</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Handbuch</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Aufnehmen, anhalten, fortsetzen</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Beenden und sichern</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Aufnahme, Aufnahmen, Einstellungen</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Aufnahmen suchen</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Die markierte Aufnahme öffnen</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Anfang, Ende, eine Seite weiter</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Abspielen, anhalten</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Zurück, vor springen</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Langsamer, schneller</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Die markierte Aufnahme schneiden</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Beim Schneiden: vergrößern, verkleinern</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Wiedergabe oder Auswahl schließen</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Diese Liste</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Beenden</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Leertaste</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Eingabe</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Pos1, Ende, Bild auf, Bild ab</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Strg+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>Gesichert als %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>Die Aufnahme wurde unterbrochen. Sie ist gesichert als %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Zuletzt: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Seit zehn Sekunden ist nichts zu hören. Ist das Mikrofon an?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Zu laut</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Stopp</translation>
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
        <translation>Mikrofon: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Die letzte Aufnahme abspielen, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Code eingeben</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Bisherigen Code eingeben</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Neuen Code eingeben</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Neuen Code wiederholen</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 von 4 Ziffern eingegeben</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Gesperrt</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Es ist kein Code gespeichert, also öffnet keiner diese Sperre. Wie man sie abschaltet, steht in der Handbuchseite von tavi.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Ihr Code ist noch nicht gespeichert</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Die Code-Sperre bleibt, wie sie war</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Die Einstellungen können nicht geschrieben werden. Bitte prüfen, ob der Datenträger voll ist und ob Sie in ihren Ordner schreiben dürfen.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Der Code kann noch nicht gelesen werden. Vielleicht fragt der Desktop nach dem Passwort seines Schlüsselbunds.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Der Schlüsselbund des Desktops, in dem der Code liegt, ist gesperrt. Entsperren Sie ihn und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Der Schlüsselbund des Desktops, in dem der Code liegt, antwortet nicht. Starten Sie ihn oder melden Sie sich neu an.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Die Datei, in der der Code liegt, ist beschädigt und bleibt, wie sie ist: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Die Datei, in der der Code liegt, ist nicht lesbar oder gehört Ihnen nicht: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Der Schlüssel zu der Datei, in der der Code liegt, fehlt: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Die Code-Sperre konnte etwas nicht speichern und behält es, bis das Programm endet. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Code: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>das ist nicht der Code</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Der Server antwortet nicht: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Dem Server wird nicht vertraut: %1 Nichts wurde gesendet.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>Der Ordner hat jetzt eine andere Adresse: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>Unter dieser Adresse ist kein WebDAV-Ordner.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Der Server weist den Benutzer oder das Passwort ab.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>Der Ordner ist nicht auf dem Server.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>Der Server ist voll.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Der Server hat zu viel zu tun.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Der Server antwortet mit Status %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Der Server hat nur einen Teil gesendet.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Der Server hat eine Datei nicht behalten.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>Der Ordner auf dem Server hat zu viele Dateien.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Das Journal der Cloud kann nicht geschrieben werden.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>Der Ordner auf dem Server ist nicht mehr derselbe.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Es wurde unterbrochen.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 wird noch geschrieben.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Der Server sagt nicht, wie lang %1 ist.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 wurde auf zwei Geräten geändert: Beide bleiben.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>Nach %1 wird noch einmal gesucht.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>Die Adresse muss mit https:// beginnen.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 ist nicht in der Cloud.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 ist noch nicht in der Cloud.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>In der Cloud ist eine Datei dieses Namens.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Dem Server kann es jetzt nicht gesagt werden.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Ein anderes Programm verwahrt die Datei.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Der Server lässt dort nichts schreiben.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Das Passwort ist nicht zu haben: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Das Passwort kann nicht aufbewahrt werden: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Ein anderer Prozess kümmert sich gerade um die Cloud.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Datei ist auf einmal vom Server verschwunden.</numerusform>
            <numerusform>%n Dateien sind auf einmal vom Server verschwunden.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Die Cloud ist kein Server.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished entfernt sie auch hier, --keep-vanished sendet sie noch einmal.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Cloud</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Cloud-Konto</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Konto</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Wo ist Ihre Cloud?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Jede Aufnahme, die Sie sichern, wird auch dort abgelegt. Auf diesem Gerät wird nichts verschoben oder entfernt.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Beim Trennen bleiben alle Aufnahmen, wo sie sind: hier und in der Cloud.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Ein Ordner, den ein anderes Programm abgleicht</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Cloud-Ordner auswählen</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Ein WebDAV-Server</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Adresse, etwa https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Benutzername</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Passwort</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Verbinden</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Verbindung wird geprüft…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Ort</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, als %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Zustand</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Abgleich</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Noch keiner</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Aus. Der Schalter in den Einstellungen schaltet den Abgleich ein.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Verbunden. Ein anderes Programm gleicht diesen Ordner ab.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Wird abgeglichen…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Alles ist in der Cloud.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Nicht abgeglichen. Es wird von selbst erneut versucht.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Auf dem Server fehlende Dateien: %1. Hier wird nichts entfernt, bevor Sie es sagen.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Jetzt abgleichen</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Entscheiden…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Trennen</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Cloud trennen?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 wird nicht mehr benutzt, das Passwort wird vergessen. Alle Aufnahmen bleiben, hier wie dort.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Ungeschützt senden?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>Die Adresse beginnt mit http://. Unterwegs kann jeder Ihre Aufnahmen und Ihr Passwort lesen.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Trotzdem senden</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Dateien fehlen in der Cloud</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Dateien, die nicht mehr auf dem Server sind: %1. Sollen sie auch hier in den Papierkorb, oder erneut gesendet werden?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Später entscheiden</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Erneut senden</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>In den Papierkorb</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Auswählen</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Wartet auf das Senden</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Wird gesendet, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>In der Cloud</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Nur in der Cloud. Zum Laden tippen</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>Unterwegs. Zum erneuten Anfordern tippen</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Andere Fassung. Beide bleiben</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Aufnahmen in der Cloud werden aktualisiert</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Aufnahmen in der Cloud aktualisieren</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Läuft nicht</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Antwortet nicht</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Gesperrt</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Bereit zur Aufnahme</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Nimmt auf, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Angehalten, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Aufnehmen</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Anhalten</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Weiter aufnehmen</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Aufnehmen oder anhalten</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Beenden und sichern</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Aufnahmen zeigen</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Symbol entfernen</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Der Rekorder läuft nicht.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Der Rekorder antwortet auf diesem Kanal nicht. Starten Sie ihn mit demselben --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>Das Symbol ist schon da.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Es gibt keinen Sitzungsbus, und ohne ihn kein Symbol.</translation>
    </message>
</context>
</TS>
