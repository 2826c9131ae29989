<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Диктофон</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Запись</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Записи</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Настройки</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>ОК</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>ОК</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>Записать звук</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Быстро начать запись</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Записи</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Сохранённые записи</translation>
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
        <translation>Настройки</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Тип записи</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Качество записи</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Настройки звука</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Облако</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>Почта</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Защита данных</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Поддержка</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Возможности</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Расширение</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Качество</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Назад ( %1 с )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Вперёд ( %1 с )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium и High остаются английскими на всех языках: от этих слов зависит формат записей. Подпись передвинутого ползунка — тоже.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Синхронизировать с облаком</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Сразу отправлять по почте</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Блокировка кодом</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Сменить код</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Оценить приложение</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Другие приложения</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Сообщить о проблеме</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Сообщение о проблеме: Диктофон</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Опишите, что пошло не так и что вы делали непосредственно перед этим:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Выберите тип записи</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Выберите качество записи</translation>
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
        <translation>Отмена</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Ошибка сети</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Проверьте подключение к Интернету</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Вам нравится этот диктофон?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Оценка поможет другим его найти. Это займёт минуту.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Нет, спасибо</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Оценить сейчас</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Напомнить позже</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Ни одна программа на этом компьютере не открывает страницы центра приложений.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Ни одна почтовая программа не приняла сообщение. Напишите на %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>нет</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Версия: %1&#10;Система: %2&#10;Звуковой сервер: %3&#10;Формат: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Готово</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Идёт запись</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Пауза</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Нет доступа к микрофону</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Для записи приложению нужен микрофон устройства. Разрешите доступ к нему в системных настройках.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Сбой записи</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>ОК</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Нет микрофона</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Аудиовход недоступен. Подключите микрофон и попробуйте снова.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Ошибка</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Эта запись больше 25 МБ, её нельзя отправить по почте.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Письмо отправлено</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>«%1» больше нет.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>«%1» — не файл, которым можно поделиться.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>Не удалось открыть «%1» в другой программе.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Не удалось показать папку с «%1».</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Нет почтовой программы.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Ни одна почтовая программа не приняла письмо с «%1».</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>«%1» в буфере обмена.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n запись в буфере обмена.</numerusform>
            <numerusform>%n записи в буфере обмена.</numerusform>
            <numerusform>%n записей в буфере обмена.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Не удалось спросить, куда сохранить «%1»: ничего не экспортировано.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Экспорт «%1»</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>Экспорт «%1» отменён.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>Не удалось экспортировать «%1»: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>«%1» экспортирован.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Показать</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Заменить «%1»?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Файл с таким именем уже есть. Его содержимое будет потеряно.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Заменить</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Экспорт</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Домашняя папка</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Папка выше</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Папки</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Имя файла</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Экспорт</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Показать в папке</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Копировать выбранную запись</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Экспортировать выбранную запись</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Облако недоступно</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Войдите в облачную учётную запись, чтобы записи синхронизировались.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>ОК</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Голосовая запись</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Микрофон отключён.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Нет микрофона для записи.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Нет устройства для воспроизведения звука.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Остаток этой записи не читается.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Звуковой сервер не запущен.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Звуковой сервер отказал в доступе.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Звуковой сервер не отвечает.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>Связь со звуковым сервером потеряна.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Возможно, идёт голосовая запись</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Сначала голосовая запись записывается на диск</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>Запись ещё не сохранена</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Записи</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Имя</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Дата</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Размер</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Локальные записи</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Записи в облаке</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Облако недоступно</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Настройте облако в настройках.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Переименовать</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Открыть в</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Обрезать</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Загрузить на диск</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Обрезать в M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Действия для %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>«%1» больше нет.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Переименование записи</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Новое имя</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Не переименовано</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Имя не может содержать</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Не переименовано</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Введите имя записи.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Не переименовано</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Запись с таким именем уже есть.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>«%1» сохраняет имя: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Удаление записи</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>«%1» в корзине.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Вернуть</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>Имя «%1» занято: запись вернулась как «%2».</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>Не удалось вернуть «%1»: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>«%1» нельзя переместить в корзину. Удалить навсегда?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Удалить навсегда</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>Не удалось удалить «%1»: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Файл aac нельзя обрезать</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Файл mp3 нельзя обрезать</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>ОК</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Del</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Меню</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Переименовать выбранную запись</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Удалить выбранную запись</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Все действия с выбранной записью</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Нажмите красную кнопку, чтобы записать</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Сохранение…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Сохранение, затем запись…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>С микрофона нет звука. Запись продолжится, как только он появится.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Микрофон снова работает. В записи не хватает %1 с.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Теперь запись с «%1».</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>«%1» не подключён. Запись с «%2».</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Микрофон</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Системный по умолчанию</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Микрофон</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>Компьютер был в спящем режиме: в записи не хватает %1, она продолжается.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Восстановлена запись: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Восстановлена %n запись.</numerusform>
            <numerusform>Восстановлены %n записи.</numerusform>
            <numerusform>Восстановлено %n записей.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>Сейчас запись сохранить нельзя. Она не пропадёт и будет сохранена при первой возможности.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Запись завершена</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 Записанное до этого сохранено.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Записей пока нет</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Здесь хранится всё, что вы записали. Перейдите в «Запись» и нажмите красную кнопку, чтобы начать.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Вкладки</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Записать</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Пауза</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Продолжить</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Остановить и сохранить</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Уровень звука</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Сортировать: %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Сортировка: %1, по возрастанию</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Сортировка: %1, по убыванию</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Найти записи</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Ни у одной записи этого нет в имени</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Сохранено как %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Импорт %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Импорт %n файла</numerusform>
            <numerusform>Импорт %n файлов</numerusform>
            <numerusform>Импорт %n файлов</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 импортирован</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Импортирован %n файл</numerusform>
            <numerusform>Импортировано %n файла</numerusform>
            <numerusform>Импортировано %n файлов</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 не импортирован: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Импортирован %n файл, не удалось: %1</numerusform>
            <numerusform>Импортировано %n файла, не удалось: %1</numerusform>
            <numerusform>Импортировано %n файлов, не удалось: %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Подробнее</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Не импортировано</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>Импорт отменён</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Перетащите сюда звуковые файлы для импорта</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>запись с таким именем уже есть</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>это папка</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>это не звуковой файл</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>его больше нет</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>диск заполнен</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>его записывает другая программа</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>он не на этом компьютере</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Стоп</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Скорость</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Свернуть проигрыватель</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Развернуть проигрыватель</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Выберите запись для прослушивания</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Она звучит здесь, с формой волны, с нужной вам скоростью.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Этот файл нельзя воспроизвести</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Остановить воспроизведение</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Назад, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Вперёд, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Половинная скорость</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Обычная скорость</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Двойная скорость</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Вывести звук на разговорный динамик</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Вывести звук на громкоговоритель</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Позиция</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 из %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Закрыть проигрыватель</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Очистить поиск</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>воспроизводится</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>пауза</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Обрезать</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Готово</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Обрезать</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Изменить снова</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Сбросить</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Перезаписать</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Прослушать выделенное</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Чтение формы волны…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Эта запись не читается.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 с</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>Масштаб</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>Увеличить</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Уменьшить</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Вся запись и её видимая часть</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>всего %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Сохранение выделенного</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Остановить запись</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Начало выделения</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Конец выделения</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Обрезка</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Обрезка</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Продолжить с обрезанной записью?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Обрезка звука</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Слушать</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Сохранить</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Обработка</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Да</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Вернуться</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>Запись не началась</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Скрыть</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Руководство пользователя</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Запись, пауза, продолжить</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Остановить и сохранить</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Запись, Записи, Настройки</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Найти записи</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Открыть выбранную запись</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Начало, конец, страница</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Воспроизведение, пауза</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Назад, вперёд</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Медленнее, быстрее</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Обрезать выбранную запись</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>При обрезке: увеличить, уменьшить</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Закрыть проигрыватель или панель</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Этот список</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Выйти</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Пробел</translation>
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
        <translation>Сохранено как %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>Запись прервана. Она сохранена как %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Последняя: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Уже десять секунд ничего не слышно. Микрофон включён?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Громко</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Стоп</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 дБ</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>Формат: %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>Микрофон: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Воспроизвести последнюю запись, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Введите код</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Введите старый код</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Введите новый код</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Повторите новый код</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Удалить</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>Введено цифр: %1 из 4</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Заблокировано</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Код не сохранён, поэтому эту блокировку ничем не открыть. Как её отключить, сказано в странице руководства tavi.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Ваш код ещё не сохранён</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Блокировка кодом осталась прежней</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Не удаётся записать настройки. Проверьте, не заполнен ли диск и можно ли писать в их папку.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Код пока не прочитать. Возможно, рабочий стол запрашивает пароль связки ключей.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Связка ключей рабочего стола, где хранится код, заблокирована. Разблокируйте её и попробуйте снова.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Связка ключей рабочего стола, где хранится код, не отвечает. Запустите её или войдите заново.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Файл с кодом повреждён и оставлен как есть: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Файл с кодом не читается или принадлежит не вам: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Нет ключа к файлу с кодом: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Блокировка кодом не смогла что-то сохранить и хранит это до конца работы программы. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Код: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>код неверный</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Сервер не отвечает.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Сервер не отвечает: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Нет доверия к серверу: %1 Ничего не отправлено.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>У папки теперь другой адрес: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>По этому адресу нет папки WebDAV.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Сервер не принимает имя пользователя или пароль.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>Папки нет на сервере.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>На сервере нет места.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Сервер перегружен.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Сервер ответил кодом состояния %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Сервер прислал только часть.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Сервер не сохранил файл.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>В папке на сервере слишком много файлов.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Не удаётся записать журнал облака.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>Папка на сервере уже не та, что была.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Прервано.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 не читается.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 ещё записывается.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Сервер не сообщает размер %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 изменён на двух устройствах: оставлены обе версии.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 ищется снова.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>Адрес должен начинаться с https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 нет в облаке.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 ещё нет в облаке.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>В облаке уже есть файл с таким именем.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Сейчас нельзя сообщить серверу.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Файл занят другой программой.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Сервер не разрешает там ничего записывать.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Не удаётся получить пароль: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Не удаётся сохранить пароль: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Сейчас облаком занимается другой процесс.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>С сервера разом исчез %n файл.</numerusform>
            <numerusform>С сервера разом исчезли %n файла.</numerusform>
            <numerusform>С сервера разом исчезло %n файлов.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Облако — не сервер.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished удалит их и здесь, --keep-vanished отправит снова.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Облако</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Учётная запись облака</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Назад</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Учётная запись</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Где ваше облако?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Каждая сохранённая запись копируется туда. На этом устройстве ничего не перемещается и не удаляется.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>При отключении все записи остаются на месте, здесь и в облаке.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Папка, которую синхронизирует другая программа</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Выбор папки облака</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Сервер WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Адрес, например https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Имя пользователя</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Пароль</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Подключить</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Проверка соединения…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Место</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, как %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Состояние</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Обновлено</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Ещё нет</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Выключено. Чтобы синхронизировать, включите переключатель в настройках.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Подключено. Эту папку синхронизирует другая программа.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Синхронизация…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Всё в облаке.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Не синхронизировано. Повтор будет автоматически.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Нет на сервере файлов: %1. Без вашего согласия здесь ничего не удаляется.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Синхронизировать</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Решить…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Отключить</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Отключить облако?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 больше не используется, пароль забыт. Все записи остаются, здесь и там.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Отправить без защиты?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>Адрес начинается с http://. Любой по пути сможет прочитать ваши записи и пароль.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Всё равно отправить</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>В облаке нет файлов</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Файлов больше нет на сервере: %1. Переместить их в корзину и здесь или отправить снова?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Решить позже</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Отправить снова</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>В корзину</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Выбрать</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Ожидает отправки</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Отправка, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>В облаке</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Только в облаке. Нажмите, чтобы загрузить</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>В пути. Нажмите, чтобы запросить снова</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Другая версия. Обе сохранены</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Обновление записей в облаке</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Обновить записи в облаке</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Не запущен</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Не отвечает</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Заблокировано</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Готов к записи</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Запись, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Пауза, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Записать</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Пауза</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Продолжить</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Запись или пауза</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Остановить и сохранить</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Показать записи</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Убрать значок</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Диктофон не запущен.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Диктофон не отвечает по этому каналу. Запустите его с тем же --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>Значок уже есть.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Нет сеансовой шины, а без неё нет значка.</translation>
    </message>
</context>
</TS>
