<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Grabadora de voz</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Grabar</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Grabaciones</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>Grabar sonido</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Crear una grabación al momento</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Grabaciones</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Grabaciones guardadas</translation>
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
        <translation>Ajustes</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Tipo de grabación</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Calidad de grabación</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Ajustes de audio</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Nube</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Correo</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Seguridad de los datos</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Ayuda</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Funciones</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Extensión</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Calidad</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Retroceder ( %1 s )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Avanzar ( %1 s )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium y High están en inglés en todos los idiomas, porque el formato de las grabaciones depende de esas palabras. También lo está el texto de un control deslizante movido.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Sincronizar con la nube</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Enviar por correo al instante</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Bloqueo con código</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Cambiar el código</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Valorar la aplicación</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Más aplicaciones</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Informar de un problema</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Informe de un problema: Grabadora de voz</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Describa qué ha fallado y qué hizo justo antes:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Seleccionar el tipo de grabación</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Seleccionar la calidad de grabación</translation>
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
        <translation>Cancelar</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Error de red</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Compruebe su conexión a Internet</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>¿Le gusta esta grabadora?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Una valoración ayuda a otros a encontrarla. Es un minuto.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>No, gracias</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Valorar ahora</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Más tarde</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Ningún programa de este equipo abre páginas de un centro de software.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Ningún programa de correo ha tomado el informe. Escriba a %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>ninguno</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Versión: %1&#10;Sistema: %2&#10;Servidor de sonido: %3&#10;Formato: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Hecho</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Grabando</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>En pausa</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Acceso al micrófono denegado</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Esta aplicación necesita el micrófono de su dispositivo para grabar. Permítale el acceso en la configuración del sistema.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Error al grabar</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>No hay micrófono</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>No hay ninguna entrada de audio disponible. Conecte un micrófono e inténtelo de nuevo.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Esta grabación ocupa más de 25 MB y no se puede enviar por correo.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>El correo se ha enviado</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>«%1» ya no existe.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>«%1» no es un archivo que se pueda compartir.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>No se pudo abrir «%1» en otro programa.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>No se pudo mostrar la carpeta de «%1».</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>No hay ningún programa de correo.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Ningún programa de correo ha tomado el mensaje con «%1».</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>«%1» está en el portapapeles.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n grabación está en el portapapeles.</numerusform>
            <numerusform>%n grabaciones están en el portapapeles.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>No se pudo preguntar dónde guardar «%1»: no se ha exportado nada.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Exportando «%1»</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>Se ha cancelado la exportación de «%1».</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>No se pudo exportar «%1»: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>Se ha exportado «%1».</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Mostrar</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>¿Reemplazar «%1»?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Ya existe un archivo con este nombre. Su contenido se perderá.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Reemplazar</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Carpeta personal</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Carpeta superior</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Carpetas</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Nombre del archivo</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Copiar la grabación seleccionada</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Exportar la grabación seleccionada</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Nube no disponible</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Inicie sesión en su cuenta en la nube para mantener sincronizadas las grabaciones.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Grabación de voz</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Se ha desconectado el micrófono.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>No hay ningún micrófono para grabar.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>No hay ninguna salida para reproducir sonido.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>No se puede leer el resto de esta grabación.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>No hay ningún servidor de sonido en marcha.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>El servidor de sonido ha denegado el acceso.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>El servidor de sonido no responde.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>Se ha perdido la conexión con el servidor de sonido.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Puede haber una grabación de voz en curso</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Antes se lleva al disco una grabación de voz</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>La grabación aún no se ha guardado</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Grabaciones</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Fecha</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Tamaño</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Grabaciones locales</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Grabaciones en la nube</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Nube no disponible</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Configure su nube en los ajustes.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Renombrar</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Abrir con</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Recortar</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Subir a una unidad</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Recortar a M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Acciones para %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>«%1» ya no existe.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Renombrar la grabación</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Nombre nuevo</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>No se ha renombrado</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Un nombre no puede contener</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>No se ha renombrado</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Escriba un nombre para la grabación.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>No se ha renombrado</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Ya hay una grabación con este nombre.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>«%1» conserva su nombre: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Eliminar la grabación</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>¿Eliminar «%1»?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>«%1» está en la papelera.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Deshacer</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>«%1» ya está en uso: la grabación ha vuelto como «%2».</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>No se pudo recuperar «%1»: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>«%1» no se puede mover a la papelera. ¿Eliminar definitivamente?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Eliminar definitivamente</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>No se pudo eliminar «%1»: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>No se puede recortar un archivo aac</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>No se puede recortar un archivo mp3</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Supr</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menú</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Renombrar la grabación seleccionada</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Eliminar la grabación seleccionada</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Todas las acciones para la grabación seleccionada</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Toque el botón rojo para grabar</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Guardando…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Guardando; después se graba…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>El micrófono no da sonido. La grabación seguirá en cuanto lo haya.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>El micrófono ha vuelto. Faltan %1 s en la grabación.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Ahora se graba de «%1».</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>«%1» no está conectado. Se graba de «%2».</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Micrófono</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Micrófono</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>El equipo se suspendió: faltan %1 en la grabación, que continúa.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Se ha recuperado una grabación: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha recuperado %n grabación.</numerusform>
            <numerusform>Se han recuperado %n grabaciones.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>La grabación no se puede guardar ahora. Se conserva y se guardará en cuanto sea posible.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Grabación terminada</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 Lo grabado hasta entonces se conserva.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Aún no hay grabaciones</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Todo lo que grabe se guarda aquí. Vaya a «Grabar» y toque el botón rojo para empezar.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Pestañas</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Grabar</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pausa</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Detener y guardar</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Nivel de sonido</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Ordenar por %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Ordenado por %1, ascendente</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Ordenado por %1, descendente</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Buscar grabaciones</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Ninguna grabación tiene esto en su nombre</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Guardada como %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importando %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importando %n archivo</numerusform>
            <numerusform>Importando %n archivos</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>Se ha importado %1</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha importado %n archivo</numerusform>
            <numerusform>Se han importado %n archivos</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>No se ha importado %1: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n archivo importado, fallidos: %1</numerusform>
            <numerusform>%n archivos importados, fallidos: %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Detalles</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>No importados</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>Se ha cancelado la importación</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Suelte aquí archivos de sonido para importarlos</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>ya hay una grabación con ese nombre</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>es una carpeta</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>no es un archivo de sonido</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>ya no existe</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>el disco está lleno</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>otro programa lo está escribiendo</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>no está en este equipo</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Detener</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Reducir el reproductor</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Mostrar todo el reproductor</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Elija una grabación para reproducirla</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Se reproduce aquí, con su forma de onda, a la velocidad que quiera.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>No se puede reproducir este archivo</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Detener la reproducción</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Retroceder, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Avanzar, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Mitad de velocidad</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Velocidad normal</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Doble velocidad</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Enviar el sonido al auricular</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Enviar el sonido al altavoz</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Posición</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 de %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Cerrar el reproductor</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>reproduciendo</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>en pausa</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Recortar</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Hecho</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Recortar</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Editar de nuevo</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Restablecer</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Regrabar</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Reproducir la selección</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Leyendo la forma de onda…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>No se puede leer esta grabación.</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Reducir</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Toda la grabación y la parte que se muestra</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>%1 en total</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Guardando la selección</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Detener la grabación</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Inicio de la selección</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Fin de la selección</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Recortar audio</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Recortar audio</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>¿Quiere continuar con la grabación recortada?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Recortando audio</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Escuchar</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Procesando</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Sí</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Volver</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>La grabación no ha empezado</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Atajos de teclado</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Guía del usuario</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Grabar, pausar, continuar</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Detener y guardar</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Grabar, Grabaciones, Ajustes</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Buscar grabaciones</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Abrir la grabación seleccionada</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Inicio, fin, página siguiente</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Reproducir, pausar</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Retroceder, avanzar</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Más lento, más rápido</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Recortar la grabación seleccionada</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Al recortar: ampliar, reducir</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Cerrar el reproductor o un panel</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Esta lista</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Salir</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Espacio</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Intro</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Inicio, Fin, Re Pág, Av Pág</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>Guardada como %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>La grabación se interrumpió. Se conserva como %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Última: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>No se oye nada desde hace diez segundos. ¿Está encendido el micrófono?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Demasiado alto</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Detener</translation>
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
        <translation>Micrófono: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Reproducir la última grabación, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Introduzca su código</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Introduzca su código actual</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Introduzca un código nuevo</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Repita el código nuevo</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 de 4 cifras introducidas</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Bloqueada</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>No hay ningún código guardado, así que ninguno puede abrir este bloqueo. La página de manual de tavi explica cómo desactivarlo.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Su código aún no se ha guardado</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>El bloqueo con código sigue como estaba</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>No se pueden escribir los ajustes. Compruebe si el disco está lleno y si puede escribir en su carpeta.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Aún no se puede leer el código. Quizá el escritorio esté pidiendo la contraseña de su depósito de claves.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>El depósito de claves del escritorio, que guarda el código, está bloqueado. Desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>El depósito de claves del escritorio, que guarda el código, no responde. Inícielo o vuelva a iniciar sesión.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>El archivo que guarda el código está dañado y se deja como está: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>El archivo que guarda el código no se puede leer o no es suyo: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Falta la clave del archivo que guarda el código: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>El bloqueo con código no pudo guardar algo y lo conserva hasta que termine el programa. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Código: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>ese no es el código</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>El servidor no responde.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>El servidor no responde: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>El servidor no es de confianza: %1 No se ha enviado nada.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>La carpeta está ahora en otra dirección: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>No hay ninguna carpeta WebDAV en esta dirección.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>El servidor rechaza el usuario o la contraseña.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>La carpeta no está en el servidor.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>El servidor está lleno.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>El servidor está saturado.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>El servidor responde con el estado %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>El servidor ha enviado solo una parte.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>El servidor no ha conservado un archivo.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>La carpeta del servidor tiene demasiados archivos.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>No se puede escribir el diario de la nube.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>La carpeta del servidor ya no es la misma.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Se ha interrumpido.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 aún se está escribiendo.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>El servidor no dice cuánto ocupa %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 se ha modificado en dos dispositivos: se conservan ambas versiones.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>Se busca %1 de nuevo.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>La dirección debe empezar por https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 no está en la nube.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 aún no está en la nube.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>Hay un archivo con ese nombre en la nube.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>No se puede avisar al servidor ahora.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Otro programa retiene el archivo.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>El servidor no permite escribir ahí.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>No se puede obtener la contraseña: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>No se puede guardar la contraseña: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Otro proceso se ocupa ahora de la nube.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n archivo ha desaparecido del servidor de golpe.</numerusform>
            <numerusform>%n archivos han desaparecido del servidor de golpe.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>La nube no es un servidor.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished los elimina también aquí; --keep-vanished los envía de nuevo.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Nube</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Cuenta en la nube</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Cuenta</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>¿Dónde está su nube?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Cada grabación que guarde se copia allí. En este dispositivo no se mueve ni se elimina nada.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Al desconectar, todas las grabaciones se quedan donde están, aquí y en la nube.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Una carpeta que sincroniza otro programa</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Elegir la carpeta de la nube</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Un servidor WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Dirección, p. ej. https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Nombre de usuario</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Contraseña</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Conectar</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Probando la conexión…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Lugar</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, como %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Última sincr.</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Aún no</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Desactivada. Active el interruptor en los ajustes para sincronizar.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Conectada. Otro programa sincroniza esta carpeta.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Sincronizando…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Todo está en la nube.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Sin sincronizar. Se reintentará automáticamente.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Archivos que faltan en el servidor: %1. Aquí no se elimina nada sin su permiso.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Sincronizar</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Decidir…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Desconectar</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>¿Desconectar la nube?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 deja de usarse y se olvida su contraseña. Todas las grabaciones se quedan, aquí y allí.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>¿Enviar sin protección?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>La dirección empieza por http://. Cualquiera en el camino puede leer sus grabaciones y su contraseña.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Enviar igualmente</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Faltan archivos en la nube</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Archivos que ya no están en el servidor: %1. ¿Se mueven también aquí a la papelera o se envían de nuevo?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Decidir más tarde</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Mover a la papelera</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Elegir</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>A la espera de envío</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Enviando, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>En la nube</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Solo en la nube. Toque para descargarla</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>En camino. Toque para pedirla otra vez</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Otra versión. Se conservan ambas</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Actualizando las grabaciones de la nube</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Actualizar las grabaciones de la nube</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>No está en marcha</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>No responde</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Bloqueada</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Lista para grabar</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Grabando, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>En pausa, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Grabar</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Pausar</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Grabar o pausar</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Detener y guardar</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Mostrar las grabaciones</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Quitar el icono</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>La grabadora no está en marcha.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>La grabadora no responde en este canal. Iníciela con el mismo --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>El icono ya está ahí.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>No hay bus de sesión, y sin él no hay icono.</translation>
    </message>
</context>
</TS>
