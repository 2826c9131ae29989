<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Registratore vocale</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Registra</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Registrazioni</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Impostazioni</translation>
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
        <translation>Registra audio</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Crea subito una registrazione</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Registrazioni</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Registrazioni salvate</translation>
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
        <translation>Impostazioni</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Tipo di registrazione</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Qualità della registrazione</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Impostazioni audio</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Cloud</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Posta</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Sicurezza dei dati</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Assistenza</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Funzioni</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Estensione</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Qualità</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Indietro ( %1 s )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Avanti ( %1 s )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium e High restano in inglese in tutte le lingue, perché il formato delle registrazioni dipende da queste parole. Lo stesso vale per il testo di un cursore spostato.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Sincronizza con il cloud</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Invia subito per e-mail</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Blocco con codice</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Cambia codice</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Valuta l’applicazione</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Altre applicazioni</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Segnala un problema</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Segnalazione di un problema: Registratore vocale</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Descrivi che cosa non ha funzionato e che cosa hai fatto subito prima:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Scegli il tipo di registrazione</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Scegli la qualità della registrazione</translation>
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
        <translation>Annulla</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Errore di rete</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Controlla la connessione a Internet</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Ti piace questo registratore?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Una valutazione aiuta altri a trovarlo. Basta un minuto.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>No, grazie</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Valuta ora</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Più tardi</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Nessun programma su questo computer apre le pagine di un software center.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Nessun programma di posta ha accettato la segnalazione. Scrivi a %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>nessuno</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Versione: %1&#10;Sistema: %2&#10;Server audio: %3&#10;Formato: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Fatto</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Registrazione</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>In pausa</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Accesso al microfono negato</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Per registrare, questa applicazione ha bisogno del microfono del dispositivo. Consenti l’accesso nelle impostazioni di sistema.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Registrazione non riuscita</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Nessun microfono</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Non c’è alcun ingresso audio. Collega un microfono e riprova.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Errore</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Questa registrazione supera i 25 MB e non si può inviare per e-mail.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>L’e-mail è stata inviata</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>«%1» non c’è più.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>«%1» non è un file che si possa condividere.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>Impossibile aprire «%1» in un altro programma.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Impossibile mostrare la cartella di «%1».</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Non c’è alcun programma di posta.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Nessun programma di posta ha accettato il messaggio con «%1».</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>«%1» è negli appunti.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n registrazione è negli appunti.</numerusform>
            <numerusform>%n registrazioni sono negli appunti.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Impossibile chiedere dove salvare «%1»: non è stato esportato nulla.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Esportazione di «%1»</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>L’esportazione di «%1» è stata annullata.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>Impossibile esportare «%1»: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>«%1» è stato esportato.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Mostra</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Sostituire «%1»?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Esiste già un file con questo nome. Il suo contenuto andrà perso.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Sostituisci</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Esporta</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Cartella personale</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Cartella superiore</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Cartelle</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Nome del file</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Esporta</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Copia la registrazione selezionata</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Esporta la registrazione selezionata</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Cloud non disponibile</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Accedi al tuo account cloud per sincronizzare le registrazioni.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Registrazione vocale</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Il microfono è stato scollegato.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Non c’è un microfono da cui registrare.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Non c’è un’uscita su cui riprodurre l’audio.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Il resto di questa registrazione non è leggibile.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Nessun server audio è in esecuzione.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Il server audio ha negato l’accesso.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Il server audio non risponde.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>La connessione al server audio è andata persa.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Potrebbe essere in corso una registrazione vocale</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Prima viene scritta su disco una registrazione vocale</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>La registrazione non è ancora salvata</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Registrazioni</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Dimensione</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Registrazioni locali</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Registrazioni nel cloud</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Cloud non disponibile</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Configura il cloud nelle impostazioni.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Rinomina</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Apri con</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Taglia</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Carica su un’unità</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Taglia in M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Azioni per %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>«%1» non c’è più.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Rinomina registrazione</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Nuovo nome</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Non rinominata</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Un nome non può contenere</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Non rinominata</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Scrivi un nome per la registrazione.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Non rinominata</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Esiste già una registrazione con questo nome.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>«%1» mantiene il suo nome: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Elimina registrazione</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Eliminare «%1»?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>«%1» è nel cestino.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>«%1» è già in uso: la registrazione è tornata come «%2».</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>Impossibile ripristinare «%1»: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>Impossibile spostare «%1» nel cestino. Eliminare definitivamente?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Elimina definitivamente</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>Impossibile eliminare «%1»: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Un file aac non si può tagliare</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Un file mp3 non si può tagliare</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Canc</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Rinomina la registrazione selezionata</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Elimina la registrazione selezionata</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Tutte le azioni per la registrazione selezionata</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Tocca il pulsante rosso per registrare</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Salvataggio…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Salvataggio, poi registrazione…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Dal microfono non arriva suono. La registrazione prosegue appena torna.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Il microfono è tornato. Nella registrazione mancano %1 s.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Ora si registra da «%1».</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>«%1» non è collegato. Si registra da «%2».</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Microfono</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Predefinito di sistema</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Microfono</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>Il computer era sospeso: nella registrazione, che prosegue, mancano %1.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>È stata recuperata una registrazione: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>È stata recuperata %n registrazione.</numerusform>
            <numerusform>Sono state recuperate %n registrazioni.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>La registrazione non si può salvare ora. Viene conservata e salvata appena possibile.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Registrazione terminata</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 Quanto registrato finora è conservato.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Ancora nessuna registrazione</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Qui trovi tutto ciò che registri. Vai a «Registra» e tocca il pulsante rosso per cominciare.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Schede</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Registra</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pausa</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Riprendi</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Ferma e salva</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Livello del suono</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Ordina per %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Ordinato per %1, crescente</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Ordinato per %1, decrescente</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Trova registrazioni</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Nessuna registrazione contiene questo nel nome</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Salvata come %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importazione di %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importazione di %n file</numerusform>
            <numerusform>Importazione di %n file</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 è stato importato</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file importato</numerusform>
            <numerusform>%n file importati</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 non è stato importato: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file importato, non riusciti: %1</numerusform>
            <numerusform>%n file importati, non riusciti: %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Dettagli</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Non importati</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>e un altro (%n)</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>L’importazione è stata annullata</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Rilascia qui i file audio per importarli</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>esiste già una registrazione con questo nome</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>è una cartella</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>non è un file audio</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>non c’è più</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>il disco è pieno</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>un altro programma lo sta scrivendo</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>non è su questo computer</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Riproduci</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Ferma</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Velocità</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Riduci il lettore</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Mostra tutto il lettore</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Scegli una registrazione da ascoltare</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Si ascolta qui, con la forma d’onda, alla velocità che vuoi.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Questo file non si può riprodurre</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Riproduci</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Ferma la riproduzione</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Indietro, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Avanti, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Metà velocità</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Velocità normale</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Velocità doppia</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Invia l’audio all’auricolare</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Invia l’audio all’altoparlante</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Posizione</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 di %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Chiudi il lettore</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Cancella la ricerca</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>in riproduzione</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>in pausa</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Taglia</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Fatto</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Taglia</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Modifica di nuovo</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Ripristina</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Registra di nuovo</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Riproduci la selezione</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Lettura della forma d’onda…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Questa registrazione non è leggibile.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 s</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>Zoom</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>Ingrandisci</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Riduci</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Tutta la registrazione e la parte mostrata</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>%1 in tutto</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Salvataggio della selezione</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Ferma la registrazione</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Inizio della selezione</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Fine della selezione</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Taglia audio</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Taglia audio</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Vuoi continuare con la registrazione tagliata?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Taglio dell’audio</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Ascolta</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Salva</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Elaborazione</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Sì</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Torna</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>La registrazione non è iniziata</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Guida utente</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Registra, pausa, riprendi</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Ferma e salva</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Registra, Registrazioni, Impostazioni</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Trova registrazioni</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Apri la registrazione selezionata</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Inizio, fine, pagina successiva</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Riproduci, pausa</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Salta indietro, avanti</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Più lento, più veloce</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Taglia la registrazione selezionata</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Nel taglio: ingrandisci, riduci</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Chiudi il lettore o un pannello</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Questo elenco</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Esci</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Spazio</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Invio</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Home, Fine, Pag su, Pag giù</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>Salvata come %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>La registrazione è stata interrotta. È conservata come %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Ultima: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Non si sente nulla da dieci secondi. Il microfono è acceso?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Troppo forte</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Ferma</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>Formato: %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>Microfono: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Riproduci l’ultima registrazione, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Inserisci il codice</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Inserisci il codice attuale</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Inserisci un nuovo codice</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Ripeti il nuovo codice</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 di 4 cifre inserite</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Bloccato</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Non è memorizzato alcun codice, quindi nessuno può aprire questo blocco. La pagina di manuale di tavi spiega come disattivarlo.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Il codice non è ancora memorizzato</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Il blocco con codice resta com’era</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Impossibile scrivere le impostazioni. Controlla se il disco è pieno e se puoi scrivere nella loro cartella.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Il codice non si può ancora leggere. Forse il desktop chiede la password del portachiavi.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Il portachiavi del desktop, che contiene il codice, è bloccato. Sbloccalo e riprova.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Il portachiavi del desktop, che contiene il codice, non risponde. Avvialo o accedi di nuovo.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Il file che contiene il codice è danneggiato e resta com’è: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Il file che contiene il codice non è leggibile o non è tuo: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Manca la chiave del file che contiene il codice: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Il blocco con codice non ha potuto memorizzare qualcosa e lo conserva fino alla fine del programma. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Codice: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>questo non è il codice</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Il server non risponde.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Il server non risponde: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Il server non è attendibile: %1 Non è stato inviato nulla.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>La cartella ha ora un altro indirizzo: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>A questo indirizzo non c’è una cartella WebDAV.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Il server rifiuta l’utente o la password.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>La cartella non è sul server.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>Il server è pieno.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Il server è sovraccarico.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Il server risponde con lo stato %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Il server ha inviato solo una parte.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Il server non ha conservato un file.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>La cartella sul server ha troppi file.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Impossibile scrivere il giornale del cloud.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>La cartella sul server non è più la stessa.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>È stato interrotto.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 non è leggibile.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 è ancora in scrittura.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Il server non indica la dimensione di %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 è cambiato su due dispositivi: entrambe le versioni restano.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 viene cercato di nuovo.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>L’indirizzo deve iniziare con https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 non è nel cloud.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 non è ancora nel cloud.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>Nel cloud c’è già un file con questo nome.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Ora non è possibile avvisare il server.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Il file è trattenuto da un altro programma.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Il server non permette di scrivere lì.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Impossibile ottenere la password: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Impossibile conservare la password: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Ora un altro processo si occupa del cloud.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n file è sparito di colpo dal server.</numerusform>
            <numerusform>%n file sono spariti di colpo dal server.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Il cloud non è un server.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished li elimina anche qui, --keep-vanished li invia di nuovo.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Cloud</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Account cloud</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Account</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Dov’è il tuo cloud?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Ogni registrazione che salvi viene copiata lì. Su questo dispositivo nulla è spostato o eliminato.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Scollegando il cloud, tutte le registrazioni restano dove sono, qui e nel cloud.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Una cartella sincronizzata da un altro programma</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Scegli la cartella del cloud</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Un server WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Indirizzo, es. https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Nome utente</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Password</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Connetti</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Prova della connessione…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Posizione</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, come %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Stato</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Ultima sincr.</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Non ancora</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Disattivato. Attiva l’interruttore nelle impostazioni per sincronizzare.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Connesso. Un altro programma sincronizza questa cartella.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Sincronizzazione…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Tutto è nel cloud.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Non sincronizzato. Nuovo tentativo automatico.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>File mancanti sul server: %1. Qui non si elimina nulla senza il tuo consenso.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Sincronizza</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Decidi…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Disconnetti</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Disconnettere il cloud?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 non viene più usato e la password viene dimenticata. Tutte le registrazioni restano, qui e là.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Inviare senza protezione?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>L’indirizzo inizia con http://. Chiunque lungo il percorso può leggere le tue registrazioni e la password.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Invia comunque</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Mancano file nel cloud</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>File che non sono più sul server: %1. Vuoi spostarli nel cestino anche qui o inviarli di nuovo?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Decidi più tardi</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Invia di nuovo</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Sposta nel cestino</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Scegli</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>In attesa di invio</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Invio, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>Nel cloud</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Solo nel cloud. Tocca per scaricarla</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>In arrivo. Tocca per richiederla</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Altra versione. Restano entrambe</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Aggiornamento delle registrazioni nel cloud</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Aggiorna le registrazioni nel cloud</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Non in esecuzione</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Non risponde</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Bloccato</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Pronto a registrare</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Registrazione, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>In pausa, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Registra</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Pausa</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Continua</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Registra o pausa</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Ferma e salva</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Mostra registrazioni</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Rimuovi icona</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Il registratore non è in esecuzione.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Il registratore non risponde su questo canale. Avvialo con lo stesso --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>L’icona c’è già.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Non c’è un bus di sessione e, senza, nessuna icona.</translation>
    </message>
</context>
</TS>
