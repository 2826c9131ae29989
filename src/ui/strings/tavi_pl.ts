<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Dyktafon</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Nagraj</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Nagrania</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Ustawienia</translation>
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
        <translation>Nagraj dźwięk</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Szybko utwórz nagranie</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Nagrania</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Zapisane nagrania</translation>
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
        <translation>Ustawienia</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Rodzaj nagrania</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Jakość nagrania</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Ustawienia dźwięku</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Chmura</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Poczta</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Bezpieczeństwo danych</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Pomoc</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Funkcje</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Rozszerzenie</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Jakość</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>W tył ( %1 s )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>W przód ( %1 s )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium i High są po angielsku w każdym języku, bo od tych słów zależy format nagrań. Tak samo jest z opisem przesuniętego suwaka.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Synchronizuj z chmurą</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Wysyłaj od razu pocztą</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Blokada kodem</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Zmień kod</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Oceń program</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Więcej programów</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Zgłoś problem</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Zgłoszenie problemu: Dyktafon</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Proszę opisać, co poszło nie tak i co było robione tuż przedtem:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Wybierz rodzaj nagrania</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Wybierz jakość nagrania</translation>
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
        <translation>Anuluj</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Błąd sieci</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Proszę sprawdzić połączenie z Internetem</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Czy podoba się ten dyktafon?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Ocena pomaga innym go znaleźć. To zajmie minutę.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Oceń teraz</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Zapytaj później</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Żaden program na tym komputerze nie otwiera stron centrum oprogramowania.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Żaden program pocztowy nie przyjął zgłoszenia. Proszę napisać na adres %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>brak</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Wersja: %1&#10;System: %2&#10;Serwer dźwięku: %3&#10;Format: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Gotowe</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Nagrywanie</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Wstrzymano</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Brak dostępu do mikrofonu</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Do nagrywania potrzebny jest mikrofon urządzenia. Proszę zezwolić na dostęp w ustawieniach systemu.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Nagrywanie się nie powiodło</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Brak mikrofonu</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Żadne wejście dźwięku nie jest dostępne. Proszę podłączyć mikrofon i spróbować ponownie.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Błąd</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>To nagranie przekracza 25 MB i nie można wysłać go pocztą.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Wiadomość została wysłana</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>„%1” już nie istnieje.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>„%1” nie jest plikiem, który można udostępnić.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>Nie można otworzyć „%1” w innym programie.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Nie można pokazać katalogu z „%1”.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Nie ma programu pocztowego.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Żaden program pocztowy nie przyjął wiadomości z „%1”.</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>„%1” jest w schowku.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n nagranie jest w schowku.</numerusform>
            <numerusform>%n nagrania są w schowku.</numerusform>
            <numerusform>%n nagrań jest w schowku.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Nie można zapytać, gdzie zapisać „%1”: nic nie wyeksportowano.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Eksportowanie „%1”</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>Eksport „%1” został anulowany.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>Nie można wyeksportować „%1”: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>Wyeksportowano „%1”.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Pokaż</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Zastąpić „%1”?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Plik o tej nazwie już istnieje. Jego zawartość zostanie utracona.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Zastąp</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Eksportuj</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Katalog domowy</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Katalog nadrzędny</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Katalogi</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Nazwa pliku</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Eksportuj</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Pokaż w katalogu</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Kopiuj zaznaczone nagranie</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Eksportuj zaznaczone nagranie</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Chmura niedostępna</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Proszę zalogować się do konta w chmurze, aby synchronizować nagrania.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Nagranie głosowe</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Mikrofon został odłączony.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Nie ma mikrofonu do nagrywania.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Nie ma na czym odtworzyć dźwięku.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Nie można odczytać reszty tego nagrania.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Żaden serwer dźwięku nie działa.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Serwer dźwięku odmówił dostępu.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Serwer dźwięku nie odpowiada.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>Utracono połączenie z serwerem dźwięku.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Może trwać nagrywanie głosu</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Najpierw nagranie jest zapisywane na dysku</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>Nagranie nie jest jeszcze zapisane</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Nagrania</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Nazwa</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Rozmiar</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Nagrania lokalne</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Nagrania w chmurze</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Chmura niedostępna</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Proszę skonfigurować chmurę w ustawieniach.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Zmień nazwę</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Otwórz w</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Przytnij</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Wyślij na dysk</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Przytnij do M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Anuluj</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Zamknij</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Działania dla %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>„%1” już nie istnieje.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Zmiana nazwy nagrania</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Nowa nazwa</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Nie zmieniono nazwy</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Nazwa nie może zawierać</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Nie zmieniono nazwy</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Proszę podać nazwę nagrania.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Nie zmieniono nazwy</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Nagranie o tej nazwie już istnieje.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>„%1” zachowuje nazwę: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Usuwanie nagrania</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Usunąć „%1”?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>„%1” jest w koszu.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Cofnij</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>Nazwa „%1” jest zajęta: nagranie wróciło jako „%2”.</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>Nie można przywrócić „%1”: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>Nie można przenieść „%1” do kosza. Usunąć na stałe?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Usuń na stałe</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>Nie można usunąć „%1”: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Pliku aac nie można przyciąć</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Pliku mp3 nie można przyciąć</translation>
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
        <translation>Zmień nazwę zaznaczonego nagrania</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Usuń zaznaczone nagranie</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Wszystkie działania dla zaznaczonego nagrania</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Dotknij czerwonego przycisku, aby nagrać</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Zapisywanie…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Zapisywanie, potem nagrywanie…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Z mikrofonu nie dochodzi dźwięk. Nagrywanie ruszy dalej, gdy się pojawi.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Mikrofon znów działa. W nagraniu brakuje %1 s.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Teraz nagrywanie z „%1”.</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>„%1” nie jest podłączony. Nagrywanie z „%2”.</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Domyślny systemu</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>Komputer był uśpiony: w nagraniu, które trwa dalej, brakuje %1.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Odzyskano nagranie: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Odzyskano %n nagranie.</numerusform>
            <numerusform>Odzyskano %n nagrania.</numerusform>
            <numerusform>Odzyskano %n nagrań.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>Nagrania nie można teraz zapisać. Jest zachowane i zostanie zapisane, gdy tylko będzie to możliwe.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Nagrywanie zakończone</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 To, co nagrano do tej pory, jest zachowane.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Nie ma jeszcze nagrań</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Tu są przechowywane wszystkie nagrania. Przejdź do „Nagraj” i dotknij czerwonego przycisku, aby zacząć.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Karty</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Nagraj</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Wstrzymaj</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Wznów</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Zatrzymaj i zapisz</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Poziom dźwięku</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Sortuj: %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Sortowanie: %1, rosnąco</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Sortowanie: %1, malejąco</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Szukaj nagrań</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Żadne nagranie nie ma tego w nazwie</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Zapisano jako %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importowanie %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importowanie %n pliku</numerusform>
            <numerusform>Importowanie %n plików</numerusform>
            <numerusform>Importowanie %n plików</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>Zaimportowano %1</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zaimportowano %n plik</numerusform>
            <numerusform>Zaimportowano %n pliki</numerusform>
            <numerusform>Zaimportowano %n plików</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>Nie zaimportowano %1: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zaimportowano %n plik, niepowodzeń: %1</numerusform>
            <numerusform>Zaimportowano %n pliki, niepowodzeń: %1</numerusform>
            <numerusform>Zaimportowano %n plików, niepowodzeń: %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Szczegóły</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Nie zaimportowano</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>i %n więcej</numerusform>
            <numerusform>i %n więcej</numerusform>
            <numerusform>i %n więcej</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>Import został anulowany</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Upuść tu pliki dźwiękowe, aby je zaimportować</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>nagranie o tej nazwie już istnieje</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>to jest katalog</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>to nie jest plik dźwiękowy</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>już nie istnieje</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>dysk jest pełny</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>inny program go zapisuje</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>nie ma go na tym komputerze</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Odtwórz</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Zatrzymaj</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Szybkość</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Pokaż mniejszy odtwarzacz</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Pokaż cały odtwarzacz</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Wybierz nagranie do odtworzenia</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Odtwarzane jest tutaj, z wykresem fali, z dowolną szybkością.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Tego pliku nie można odtworzyć</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Odtwórz</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Zatrzymaj odtwarzanie</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>W tył, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>W przód, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Połowa szybkości</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Zwykła szybkość</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Podwójna szybkość</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Kieruj dźwięk do słuchawki</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Kieruj dźwięk do głośnika</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Pozycja</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 z %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Zamknij odtwarzacz</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>odtwarzane</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>wstrzymane</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Przytnij</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Gotowe</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Przytnij</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Edytuj ponownie</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Przywróć</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Nagraj ponownie</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Odtwórz zaznaczenie</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Odczytywanie wykresu fali…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Tego nagrania nie można odczytać.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 s</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>Powiększenie</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>Powiększ</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Pomniejsz</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Całe nagranie i jego widoczna część</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>razem %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Zapisywanie zaznaczenia</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Zatrzymaj nagrywanie</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Początek zaznaczenia</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Koniec zaznaczenia</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Przytnij dźwięk</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Przytnij dźwięk</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Kontynuować z przyciętym nagraniem?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Przycinanie dźwięku</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Posłuchaj</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Zapisz</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Zamknij</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Przetwarzanie</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Tak</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Nie</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Wróć</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>Nagrywanie się nie zaczęło</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Odrzuć</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Podręcznik użytkownika</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Zamknij</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Nagraj, wstrzymaj, wznów</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Zatrzymaj i zapisz</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Nagraj, Nagrania, Ustawienia</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Szukaj nagrań</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Otwórz zaznaczone nagranie</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Początek, koniec, strona dalej</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Odtwórz, wstrzymaj</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>W tył, w przód</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Wolniej, szybciej</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Przytnij zaznaczone nagranie</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Przy przycinaniu: powiększ, pomniejsz</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Zamknij odtwarzacz lub panel</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Ta lista</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Zakończ</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Spacja</translation>
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
        <translation>Zapisano jako %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>Nagrywanie zostało przerwane. Nagranie zachowano jako %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Ostatnie: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Od dziesięciu sekund nic nie słychać. Czy mikrofon jest włączony?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Za głośno</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Zatrzymaj</translation>
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
        <translation>Odtwórz ostatnie nagranie, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Wprowadź kod</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Wprowadź dotychczasowy kod</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Wprowadź nowy kod</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Powtórz nowy kod</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Usuń</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>Wprowadzono cyfry: %1 z 4</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Zablokowano</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Nie zapisano żadnego kodu, więc żaden nie otworzy tej blokady. Strona podręcznika tavi mówi, jak ją wyłączyć.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Kod nie jest jeszcze zapisany</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Blokada kodem pozostaje bez zmian</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Nie można zapisać ustawień. Proszę sprawdzić, czy dysk nie jest pełny i czy można pisać w ich katalogu.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Kodu nie można jeszcze odczytać. Może środowisko pyta o hasło bazy kluczy.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Baza kluczy środowiska, w której jest kod, jest zablokowana. Proszę ją odblokować i spróbować ponownie.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Baza kluczy środowiska, w której jest kod, nie odpowiada. Proszę ją uruchomić lub zalogować się ponownie.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Plik z kodem jest uszkodzony i pozostaje bez zmian: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Plik z kodem jest nieczytelny lub należy do kogoś innego: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Brakuje klucza do pliku z kodem: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Blokada kodem nie mogła czegoś zapisać i zachowa to do końca działania programu. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Kod: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>to nie jest ten kod</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Serwer nie odpowiada.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Serwer nie odpowiada: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Serwer nie jest zaufany: %1 Nic nie wysłano.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>Katalog ma teraz inny adres: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>Pod tym adresem nie ma katalogu WebDAV.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Serwer odrzuca użytkownika lub hasło.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>Katalogu nie ma na serwerze.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>Serwer jest pełny.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Serwer jest przeciążony.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Serwer odpowiada stanem %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Serwer wysłał tylko część.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Serwer nie zachował pliku.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>Katalog na serwerze ma zbyt wiele plików.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Nie można zapisać dziennika chmury.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>Katalog na serwerze nie jest już ten sam.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Przerwano.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>Nie można odczytać %1.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 jest jeszcze zapisywany.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Serwer nie podaje rozmiaru %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 zmieniono na dwóch urządzeniach: zachowano obie wersje.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>Trwa ponowne szukanie %1.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>Adres musi zaczynać się od https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 nie jest w chmurze.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 nie jest jeszcze w chmurze.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>W chmurze jest już plik o tej nazwie.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Nie można teraz powiadomić serwera.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Plik jest trzymany przez inny program.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Serwer nie pozwala tam niczego zapisać.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Nie można uzyskać hasła: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Nie można zachować hasła: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Chmurą zajmuje się teraz inny proces.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n plik zniknął naraz z serwera.</numerusform>
            <numerusform>%n pliki zniknęły naraz z serwera.</numerusform>
            <numerusform>%n plików zniknęło naraz z serwera.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Chmura nie jest serwerem.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished usunie je także tutaj, --keep-vanished wyśle je ponownie.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Chmura</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Konto w chmurze</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Wstecz</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Konto</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Gdzie jest chmura?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Każde zapisane nagranie jest tam kopiowane. Na tym urządzeniu nic nie jest przenoszone ani usuwane.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Po rozłączeniu wszystkie nagrania zostają tam, gdzie są: tu i w chmurze.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Katalog synchronizowany przez inny program</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Wybór katalogu chmury</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Serwer WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Adres, np. https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Hasło</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Połącz</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Sprawdzanie połączenia…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Miejsce</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, jako %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Stan</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Ostatnia synchr.</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Jeszcze nie</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Wyłączona. Aby synchronizować, włącz przełącznik w ustawieniach.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Połączona. Ten katalog synchronizuje inny program.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Synchronizowanie…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Wszystko jest w chmurze.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Brak synchronizacji. Kolejna próba nastąpi sama.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Pliki brakujące na serwerze: %1. Nic nie zostanie tu usunięte bez zgody.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Synchronizuj</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Zdecyduj…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Rozłącz</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Rozłączyć chmurę?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 nie będzie już używane, a hasło zostanie zapomniane. Wszystkie nagrania zostają, tu i tam.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Wysłać bez ochrony?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>Adres zaczyna się od http://. Każdy po drodze może odczytać nagrania i hasło.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Wyślij mimo to</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Brak plików w chmurze</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Pliki, których już nie ma na serwerze: %1. Przenieść je do kosza także tutaj czy wysłać ponownie?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Zdecyduj później</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Wyślij ponownie</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Przenieś do kosza</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Wybierz</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Czeka na wysłanie</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Wysyłanie, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>W chmurze</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Tylko w chmurze. Dotknij, aby pobrać</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>W drodze. Dotknij, aby poprosić znów</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Inna wersja. Obie są zachowane</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Odświeżanie nagrań w chmurze</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Odśwież nagrania w chmurze</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Nie działa</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Nie odpowiada</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Zablokowano</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Gotowy do nagrywania</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Nagrywanie, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Wstrzymano, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Nagraj</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Wstrzymaj</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Wznów</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Nagraj lub wstrzymaj</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Zatrzymaj i zapisz</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Pokaż nagrania</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Usuń ikonę</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Dyktafon nie działa.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Dyktafon nie odpowiada na tym kanale. Proszę uruchomić go z tym samym --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>Ikona już jest.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Nie ma magistrali sesji, a bez niej nie ma ikony.</translation>
    </message>
</context>
</TS>
