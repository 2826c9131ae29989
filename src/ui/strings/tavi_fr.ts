<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Dictaphone</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Enregistrements</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Réglages</translation>
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
        <translation>Enregistrer du son</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Créer un enregistrement rapidement</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Enregistrements</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Enregistrements sauvegardés</translation>
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
        <translation>Réglages</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Type d’enregistrement</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Qualité d’enregistrement</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Réglages audio</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Nuage</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Courriel</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Sécurité des données</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Assistance</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Fonctions</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Extension</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Qualité</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Reculer ( %1 s )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Avancer ( %1 s )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium et High restent en anglais dans toutes les langues, car le format des enregistrements dépend de ces mots. Il en va de même du libellé d’un curseur déplacé.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Synchroniser avec le nuage</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Envoyer aussitôt par courriel</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Verrouillage par code</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Changer le code</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Noter l’application</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Autres applications</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Signaler un problème</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Signalement d’un problème : Dictaphone</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Décrivez ce qui n’a pas fonctionné et ce que vous faisiez juste avant :&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Choisir le type d’enregistrement</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Choisir la qualité d’enregistrement</translation>
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
        <translation>Annuler</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Erreur de réseau</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Vérifiez votre connexion à Internet</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Ce dictaphone vous plaît-il ?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Une note aide les autres à le trouver. Cela prend une minute.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Non, merci</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Noter maintenant</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Plus tard</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Aucun programme de cet ordinateur n’ouvre les pages d’une logithèque.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Aucun logiciel de messagerie n’a pris le signalement. Écrivez à %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>aucun</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Version : %1&#10;Système : %2&#10;Serveur de son : %3&#10;Format : %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Enregistrement</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>En pause</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Accès au microphone refusé</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Cette application a besoin du microphone de votre appareil pour enregistrer. Autorisez-lui l’accès dans les paramètres du système.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Échec de l’enregistrement</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Aucun microphone</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Aucune entrée audio n’est disponible. Branchez un microphone, puis réessayez.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Erreur</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Cet enregistrement dépasse 25 Mo et ne peut pas être envoyé par courriel.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Votre courriel a été envoyé</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>« %1 » n’existe plus.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>« %1 » n’est pas un fichier qui peut être transmis.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>« %1 » n’a pas pu être ouvert dans un autre programme.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Le dossier de « %1 » n’a pas pu être affiché.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Il n’y a pas de logiciel de messagerie.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Aucun logiciel de messagerie n’a pris le message avec « %1 ».</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>« %1 » est dans le presse-papiers.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n enregistrement est dans le presse-papiers.</numerusform>
            <numerusform>%n enregistrements sont dans le presse-papiers.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Impossible de demander où placer « %1 » : rien n’a été exporté.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Exportation de « %1 »</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>L’exportation de « %1 » a été annulée.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>« %1 » n’a pas pu être exporté : %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>« %1 » a été exporté.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Afficher</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Remplacer « %1 » ?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Un fichier de ce nom existe déjà. Son contenu sera perdu.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Remplacer</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Exporter</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Dossier personnel</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Dossier parent</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Dossiers</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Nom du fichier</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Exporter</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Copier l’enregistrement sélectionné</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Exporter l’enregistrement sélectionné</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Nuage indisponible</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Connectez-vous à votre compte en nuage pour synchroniser vos enregistrements.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Enregistrement vocal</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Le microphone a été débranché.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Il n’y a pas de microphone pour enregistrer.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Il n’y a aucune sortie pour lire du son.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>La suite de cet enregistrement est illisible.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Aucun serveur de son n’est lancé.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Le serveur de son a refusé l’accès.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Le serveur de son ne répond pas.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>La connexion au serveur de son a été perdue.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Un enregistrement vocal est peut-être en cours</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Un enregistrement vocal est d’abord écrit sur le disque</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>L’enregistrement n’est pas encore sauvegardé</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Enregistrements</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Taille</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Enregistrements locaux</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Enregistrements dans le nuage</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Nuage non disponible</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Configurez votre nuage dans les réglages.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Renommer</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Ouvrir avec</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Rogner</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Envoyer vers un lecteur</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Rogner en M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Actions pour %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>« %1 » n’existe plus.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Renommer l’enregistrement</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Nouveau nom</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Non renommé</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Un nom ne peut pas contenir</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Non renommé</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Saisissez un nom pour l’enregistrement.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Non renommé</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Un enregistrement de ce nom existe déjà.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>« %1 » garde son nom : %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Supprimer l’enregistrement</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Supprimer « %1 » ?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>« %1 » est dans la corbeille.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>« %1 » est déjà pris : l’enregistrement est revenu sous le nom « %2 ».</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>« %1 » n’a pas pu être restauré : %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>« %1 » ne peut pas aller à la corbeille. Supprimer définitivement ?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>« %1 » n’a pas pu être supprimé : %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Un fichier aac ne peut pas être rogné</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Un fichier mp3 ne peut pas être rogné</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Suppr</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Renommer l’enregistrement sélectionné</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Supprimer l’enregistrement sélectionné</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Toutes les actions pour l’enregistrement sélectionné</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Touchez le bouton rouge pour enregistrer</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Sauvegarde…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Sauvegarde, puis enregistrement…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Le microphone ne donne aucun son. L’enregistrement reprendra dès qu’il y en aura.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Le microphone est revenu. Il manque %1 s à l’enregistrement.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Enregistrement à partir de « %1 ».</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>« %1 » n’est pas branché. Enregistrement à partir de « %2 ».</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Microphone</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Choix du système</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Microphone</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>L’ordinateur était en veille : il manque %1 à l’enregistrement, qui continue.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Un enregistrement a été récupéré : %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n enregistrement a été récupéré.</numerusform>
            <numerusform>%n enregistrements ont été récupérés.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>L’enregistrement ne peut pas être sauvegardé maintenant. Il est conservé et le sera dès que possible.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Enregistrement terminé</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 Ce qui a été enregistré jusque-là est conservé.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Aucun enregistrement</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Tout ce que vous enregistrez est conservé ici. Allez à « Enregistrer » et touchez le bouton rouge pour commencer.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Onglets</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Arrêter et sauvegarder</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Niveau sonore</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Trier par %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Tri par %1, croissant</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Tri par %1, décroissant</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Rechercher</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Aucun nom d’enregistrement ne contient ce texte</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Sauvegardé sous %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importation de %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importation de %n fichier</numerusform>
            <numerusform>Importation de %n fichiers</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 a été importé</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fichier a été importé</numerusform>
            <numerusform>%n fichiers ont été importés</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 n’a pas été importé : %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fichier importé, échecs : %1</numerusform>
            <numerusform>%n fichiers importés, échecs : %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Détails</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Non importés</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>L’importation a été annulée</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Déposez ici des fichiers audio pour les importer</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>un enregistrement de ce nom existe déjà</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>c’est un dossier</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>ce n’est pas un fichier audio</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>il n’existe plus</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>le disque est plein</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>un autre programme est en train de l’écrire</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>il n’est pas sur cet appareil</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Lire</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Réduire le lecteur</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Afficher tout le lecteur</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Choisissez un enregistrement à écouter</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Il est lu ici, avec sa forme d’onde, à la vitesse de votre choix.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Ce fichier ne peut pas être lu</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Lire</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Reculer, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Avancer, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Demi-vitesse</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Vitesse normale</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Double vitesse</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Envoyer le son vers l’écouteur</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Envoyer le son vers le haut-parleur</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Position</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 sur %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Fermer le lecteur</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>en lecture</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>en pause</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Rogner</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Rogner</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Modifier encore</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Réinitialiser</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Réenregistrer</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Lire la sélection</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Lecture de la forme d’onde…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Cet enregistrement est illisible.</translation>
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
        <translation>Zoom avant</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Zoom arrière</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Tout l’enregistrement, et la partie affichée</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>%1 en tout</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Sauvegarde de la sélection</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Début de la sélection</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Fin de la sélection</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Rogner le son</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Rogner le son</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Voulez-vous continuer avec l’enregistrement rogné ?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Rognage du son</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Traitement</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Oui</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Non</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>L’enregistrement n’a pas commencé</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Enregistrer, pause, reprendre</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Arrêter et sauvegarder</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Enregistrer, Enregistrements, Réglages</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Rechercher</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Ouvrir l’enregistrement sélectionné</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Début, fin, page suivante</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Lire, pause</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Reculer, avancer</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Plus lent, plus rapide</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Rogner l’enregistrement sélectionné</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Au rognage : zoom avant, zoom arrière</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Fermer le lecteur ou un panneau</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Cette liste</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Quitter</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Espace</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Entrée</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Échap</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Début, Fin, Page préc., Page suiv.</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>Sauvegardé sous %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>L’enregistrement a été interrompu. Il est conservé sous %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Dernier : %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Rien n’a été entendu depuis dix secondes. Le microphone est-il allumé ?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Trop fort</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>Format : %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>Microphone : %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Lire le dernier enregistrement, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Saisissez votre code</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Saisissez votre ancien code</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Saisissez un nouveau code</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Saisissez de nouveau le code</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 chiffres sur 4 saisis</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Verrouillé</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Aucun code n’est enregistré, donc aucun ne peut ouvrir ce verrou. La page de manuel de tavi dit comment le désactiver.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Votre code n’est pas encore enregistré</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Le verrouillage par code reste inchangé</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Les réglages ne peuvent pas être écrits. Vérifiez si le disque est plein et si vous pouvez écrire dans leur dossier.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Le code ne peut pas encore être lu. Le bureau demande peut-être le mot de passe de son trousseau.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Le trousseau du bureau, qui contient le code, est verrouillé. Déverrouillez-le et réessayez.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Le trousseau du bureau, qui contient le code, ne répond pas. Démarrez-le ou reconnectez-vous.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Le fichier qui contient le code est endommagé et reste tel quel : %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Le fichier qui contient le code est illisible ou n’est pas à vous : %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>La clé du fichier qui contient le code est absente : %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Le verrouillage par code n’a pas pu enregistrer une donnée et la garde jusqu’à la fin du programme. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Code : </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>ce n’est pas le code</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Le serveur ne répond pas.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Le serveur ne répond pas : %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Le serveur n’est pas digne de confiance : %1 Rien n’a été envoyé.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>Le dossier a changé d’adresse : %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>Il n’y a pas de dossier WebDAV à cette adresse.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Le serveur refuse l’utilisateur ou le mot de passe.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>Le dossier n’est pas sur le serveur.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>Le serveur est plein.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Le serveur est surchargé.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Le serveur répond par le code d’état %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Le serveur n’a envoyé qu’une partie.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Le serveur n’a pas conservé un fichier.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>Le dossier sur le serveur a trop de fichiers.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Le journal du nuage ne peut pas être écrit.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>Le dossier sur le serveur n’est plus le même.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Cela a été interrompu.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 est illisible.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 est encore en cours d’écriture.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Le serveur ne dit pas quelle est la longueur de %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 a été modifié sur deux appareils : les deux versions sont conservées.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 est recherché de nouveau.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>L’adresse doit commencer par https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 n’est pas dans le nuage.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 n’est pas encore dans le nuage.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>Il y a un fichier de ce nom dans le nuage.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Le serveur ne peut pas être averti maintenant.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Le fichier est détenu par un autre programme.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Le serveur n’y autorise aucune écriture.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Le mot de passe n’est pas accessible : %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Le mot de passe ne peut pas être conservé : %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Un autre processus s’occupe actuellement du nuage.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fichier a disparu du serveur d’un coup.</numerusform>
            <numerusform>%n fichiers ont disparu du serveur d’un coup.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Le nuage n’est pas un serveur.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished les retire aussi d’ici, --keep-vanished les envoie de nouveau.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Nuage</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Compte en nuage</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Compte</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Où est votre nuage ?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Chaque enregistrement sauvegardé y est copié. Rien n’est déplacé ni supprimé sur cet appareil.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>La déconnexion laisse tous les enregistrements en place, ici et dans le nuage.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Un dossier synchronisé par un autre programme</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Choisir le dossier du nuage</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Un serveur WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Adresse, p. ex. https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Mot de passe</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Connecter</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Test de la connexion…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Emplacement</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, en tant que %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>État</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Synchronisé</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Pas encore</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Désactivé. Activez l’interrupteur dans les réglages pour synchroniser.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Connecté. Un autre programme synchronise ce dossier.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Synchronisation…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Tout est dans le nuage.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Non synchronisé. Un nouvel essai aura lieu tout seul.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Fichiers absents du serveur : %1. Rien n’est supprimé ici sans votre accord.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Synchroniser</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Décider…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Déconnecter</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Déconnecter le nuage ?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 n’est plus utilisé et son mot de passe est oublié. Tous les enregistrements restent, ici et là-bas.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Envoyer sans protection ?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>L’adresse commence par http://. Sur le trajet, n’importe qui peut lire vos enregistrements et votre mot de passe.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Envoyer quand même</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Fichiers absents du nuage</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Fichiers qui ne sont plus sur le serveur : %1. Faut-il les mettre aussi à la corbeille ici, ou les envoyer de nouveau ?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Décider plus tard</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Envoyer de nouveau</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Choisir</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>En attente d’envoi</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Envoi, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>Dans le nuage</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Seulement dans le nuage. Touchez pour récupérer</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>En route. Touchez pour redemander</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Autre version. Les deux sont conservées</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Actualisation des enregistrements du nuage</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Actualiser les enregistrements du nuage</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Non lancé</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Ne répond pas</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Verrouillé</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Prêt à enregistrer</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Enregistrement, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>En pause, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Enregistrer ou pause</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Arrêter et sauvegarder</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Afficher les enregistrements</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Retirer l’icône</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Le dictaphone n’est pas lancé.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Le dictaphone ne répond pas sur ce canal. Lancez-le avec le même --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>L’icône est déjà là.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Il n’y a pas de bus de session, et sans lui pas d’icône.</translation>
    </message>
</context>
</TS>
