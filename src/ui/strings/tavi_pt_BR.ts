<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Gravador de voz</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Gravar</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Gravações</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Configurações</translation>
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
        <translation>Gravar áudio</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Criar uma gravação rapidamente</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Gravações</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Gravações salvas</translation>
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
        <translation>Configurações</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Tipo de gravação</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Qualidade da gravação</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Configurações de áudio</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Nuvem</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>E-mail</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Segurança dos dados</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Suporte</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Recursos</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Extensão</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Qualidade</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Voltar ( %1 s )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>Avançar ( %1 s )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium e High ficam em inglês em todos os idiomas, pois o formato das gravações depende dessas palavras. O mesmo vale para o texto de um controle que foi movido.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Sincronizar com a nuvem</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Enviar logo por e-mail</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Bloqueio por código</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Alterar código</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Avaliar o aplicativo</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Mais aplicativos</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Relatar um problema</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Relato de problema: Gravador de voz</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Descreva o que deu errado e o que você fez pouco antes:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Selecione o tipo de gravação</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Selecione a qualidade da gravação</translation>
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
        <translation>Erro de rede</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Verifique sua conexão com a Internet</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Você gosta deste gravador?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Uma avaliação ajuda outras pessoas a encontrá-lo. Leva um minuto.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Não, obrigado</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Avaliar agora</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Mais tarde</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Nenhum programa deste computador abre páginas de uma central de aplicativos.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Nenhum programa de e-mail aceitou o relato. Escreva para %1.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>nenhum</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Versão: %1&#10;Sistema: %2&#10;Servidor de som: %3&#10;Formato: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Concluir</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Gravando</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Pausado</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Acesso ao microfone negado</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Este aplicativo precisa do microfone do seu dispositivo para gravar. Permita o acesso nas configurações do sistema.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Falha na gravação</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Sem microfone</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Nenhuma entrada de áudio está disponível. Conecte um microfone e tente novamente.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Erro</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Esta gravação tem mais de 25 MB e não pode ser enviada por e-mail.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>Seu e-mail foi enviado</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>“%1” não existe mais.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>“%1” não é um arquivo que possa ser compartilhado.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>Não foi possível abrir “%1” em outro programa.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>Não foi possível mostrar a pasta de “%1”.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>Não há programa de e-mail.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Nenhum programa de e-mail aceitou a mensagem com “%1”.</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>“%1” está na área de transferência.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n gravação está na área de transferência.</numerusform>
            <numerusform>%n gravações estão na área de transferência.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>Não foi possível perguntar onde salvar “%1”: nada foi exportado.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>Exportando “%1”</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>A exportação de “%1” foi cancelada.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>Não foi possível exportar “%1”: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>“%1” foi exportado.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Mostrar</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>Substituir “%1”?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Já existe um arquivo com este nome. O conteúdo dele será perdido.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Substituir</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Pasta pessoal</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Pasta acima</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Pastas</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Nome do arquivo</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Copiar a gravação selecionada</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Exportar a gravação selecionada</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Nuvem indisponível</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Entre na sua conta na nuvem para manter as gravações sincronizadas.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Gravação de voz</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>O microfone foi desconectado.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Não há microfone para gravar.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Não há saída para reproduzir som.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Não é possível ler o resto desta gravação.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Nenhum servidor de som está em execução.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>O servidor de som negou o acesso.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>O servidor de som não responde.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>A conexão com o servidor de som foi perdida.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Uma gravação de voz pode estar em andamento</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Uma gravação de voz é levada ao disco antes</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>A gravação ainda não foi salva</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Gravações</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Gravações locais</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Gravações na nuvem</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Nuvem indisponível</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Configure sua nuvem nas configurações.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Renomear</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Abrir com</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Cortar</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Enviar para uma unidade</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>Cortar para M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>Ações para %1</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>“%1” não existe mais.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Renomear gravação</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Novo nome</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Não renomeado</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Um nome não pode conter</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Não renomeado</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Digite um nome para a gravação.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Não renomeado</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Já existe uma gravação com este nome.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>“%1” mantém o nome: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Excluir gravação</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>Excluir “%1”?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>“%1” está na lixeira.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Desfazer</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>“%1” já está em uso: a gravação voltou como “%2”.</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>Não foi possível recuperar “%1”: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>“%1” não pode ir para a lixeira. Excluir definitivamente?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Excluir definitivamente</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>Não foi possível excluir “%1”: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>Um arquivo aac não pode ser cortado</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>Um arquivo mp3 não pode ser cortado</translation>
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
        <translation>Renomear a gravação selecionada</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Excluir a gravação selecionada</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Todas as ações para a gravação selecionada</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Toque no botão vermelho para gravar</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Salvando…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Salvando, depois gravando…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Não vem som do microfone. A gravação continua assim que houver.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>O microfone voltou. Faltam %1 s na gravação.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Agora gravando de “%1”.</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>“%1” não está conectado. Gravando de “%2”.</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Microfone</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Padrão do sistema</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Microfone</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>O computador foi suspenso: faltam %1 na gravação, que continua.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Uma gravação foi recuperada: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n gravação foi recuperada.</numerusform>
            <numerusform>%n gravações foram recuperadas.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>A gravação não pode ser salva agora. Ela é mantida e será salva assim que possível.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Gravação encerrada</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 O que foi gravado até então está guardado.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Nenhuma gravação ainda</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Tudo o que você grava fica aqui. Vá para “Gravar” e toque no botão vermelho para fazer a primeira.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Abas</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Gravar</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Pausar</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Parar e salvar</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Nível do som</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>Ordenar por %1</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>Ordenado por %1, crescente</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>Ordenado por %1, decrescente</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Localizar gravações</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Nenhuma gravação tem isso no nome</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>Salvo como %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>Importando %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Importando %n arquivo</numerusform>
            <numerusform>Importando %n arquivos</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 foi importado</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n arquivo foi importado</numerusform>
            <numerusform>%n arquivos foram importados</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 não foi importado: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n arquivo importado, falhas: %1</numerusform>
            <numerusform>%n arquivos importados, falhas: %1</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Detalhes</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>Não importados</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>A importação foi cancelada</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>Solte arquivos de som aqui para importá-los</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>já existe uma gravação com esse nome</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>é uma pasta</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>não é um arquivo de som</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>não existe mais</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>o disco está cheio</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>outro programa está gravando nele</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>não está neste computador</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Reproduzir</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Parar</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Velocidade</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Mostrar um reprodutor menor</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Mostrar o reprodutor inteiro</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Escolha uma gravação para reproduzir</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Ela é reproduzida aqui, com a forma de onda, na velocidade que você quiser.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Este arquivo não pode ser reproduzido</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Reproduzir</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Parar a reprodução</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Voltar, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>Avançar, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Metade da velocidade</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Velocidade normal</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Dobro da velocidade</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Enviar o som para o fone</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Enviar o som para o alto-falante</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Posição</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 de %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Fechar o reprodutor</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Limpar a busca</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>reproduzindo</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>pausado</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Cortar</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Concluir</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Cortar</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Editar de novo</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Redefinir</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Regravar</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Reproduzir a seleção</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Lendo a forma de onda…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Não é possível ler esta gravação.</translation>
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
        <translation>Reduzir</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Toda a gravação e a parte mostrada</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>%1 no total</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Salvando a seleção</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Parar a gravação</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Início da seleção</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Fim da seleção</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Cortar áudio</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Cortar áudio</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Deseja continuar com a gravação cortada?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Cortando áudio</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Ouvir</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Salvar</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>Processando</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Sim</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Não</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>A gravação não começou</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Dispensar</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Guia do usuário</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Gravar, pausar, continuar</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Parar e salvar</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Gravar, Gravações, Configurações</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Localizar gravações</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Abrir a gravação selecionada</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>Início, fim, página seguinte</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Reproduzir, pausar</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Voltar, avançar</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Mais devagar, mais rápido</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Cortar a gravação selecionada</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Ao cortar: ampliar, reduzir</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Fechar o reprodutor ou um painel</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Esta lista</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Sair</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Espaço</translation>
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
        <translation>Salvo como %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>A gravação foi interrompida. Está guardada como %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Última: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>Nada é ouvido há dez segundos. O microfone está ligado?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Alto demais</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Parar</translation>
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
        <translation>Microfone: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Reproduzir a última gravação, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Digite seu código</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Digite seu código atual</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Digite um novo código</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Digite o novo código outra vez</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Apagar</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>%1 de 4 dígitos inseridos</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Bloqueado</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Nenhum código está guardado, então nenhum pode abrir este bloqueio. A página de manual do tavi diz como desativá-lo.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Seu código ainda não foi guardado</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>O bloqueio por código continua como estava</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Não é possível gravar as configurações. Veja se o disco está cheio e se você pode escrever na pasta delas.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>O código ainda não pode ser lido. Talvez o ambiente esteja pedindo a senha do chaveiro.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>O chaveiro do ambiente, que guarda o código, está bloqueado. Desbloqueie-o e tente novamente.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>O chaveiro do ambiente, que guarda o código, não responde. Inicie-o ou entre novamente na sessão.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>O arquivo que guarda o código está danificado e fica como está: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>O arquivo que guarda o código não pode ser lido ou não é seu: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Falta a chave do arquivo que guarda o código: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>O bloqueio por código não pôde guardar algo e o mantém até o programa terminar. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Código: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>este não é o código</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>O servidor não responde.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>O servidor não responde: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>O servidor não é confiável: %1 Nada foi enviado.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>A pasta agora está em outro endereço: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>Não há pasta WebDAV neste endereço.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>O servidor recusa o usuário ou a senha.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>A pasta não está no servidor.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>O servidor está cheio.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>O servidor está sobrecarregado.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>O servidor responde com o status %1.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>O servidor enviou apenas uma parte.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>O servidor não manteve um arquivo.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>A pasta no servidor tem arquivos demais.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Não é possível gravar o diário da nuvem.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>A pasta no servidor não é mais a mesma.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Foi interrompido.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 ainda está sendo gravado.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>O servidor não informa o tamanho de %1.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 foi alterado em dois dispositivos: as duas versões são mantidas.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 está sendo procurado de novo.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>O endereço deve começar com https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 não está na nuvem.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 ainda não está na nuvem.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>Há um arquivo com esse nome na nuvem.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Não é possível avisar o servidor agora.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>O arquivo está com outro programa.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>O servidor não permite gravar ali.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Não é possível obter a senha: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Não é possível guardar a senha: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Outro processo cuida da nuvem agora.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n arquivo sumiu do servidor de uma vez.</numerusform>
            <numerusform>%n arquivos sumiram do servidor de uma vez.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>A nuvem não é um servidor.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished os remove aqui também; --keep-vanished os envia de novo.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Nuvem</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Conta na nuvem</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Conta</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Onde fica sua nuvem?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Cada gravação que você salva é copiada para lá. Nada é movido nem removido neste dispositivo.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Ao desconectar, todas as gravações ficam onde estão, aqui e na nuvem.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Uma pasta que outro programa sincroniza</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Escolher a pasta da nuvem</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>Um servidor WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Endereço, como https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Nome de usuário</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Senha</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Conectar</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Testando a conexão…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Local</translation>
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
        <translation>Ainda não</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Desativada. Ligue a chave nas configurações para sincronizar.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Conectada. Outro programa sincroniza esta pasta.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Sincronizando…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Tudo está na nuvem.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Não sincronizado. Uma nova tentativa será feita sozinha.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Arquivos ausentes no servidor: %1. Nada é removido aqui antes de você confirmar.</translation>
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
        <translation>Desconectar a nuvem?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 não é mais usado, e a senha é esquecida. Todas as gravações ficam, aqui e lá.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Enviar sem proteção?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>O endereço começa com http://. Qualquer um no caminho pode ler suas gravações e sua senha.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Enviar mesmo assim</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Faltam arquivos na nuvem</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Arquivos que não estão mais no servidor: %1. Devem ir para a lixeira aqui também ou ser enviados de novo?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Decidir depois</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Enviar de novo</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Mover para a lixeira</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Escolher</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Aguardando envio</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Enviando, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>Na nuvem</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Só na nuvem. Toque para baixar</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>A caminho. Toque para pedir de novo</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Outra versão. As duas são mantidas</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Atualizando as gravações da nuvem</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Atualizar as gravações da nuvem</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Não está em execução</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Não responde</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Bloqueado</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Pronto para gravar</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Gravando, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Pausado, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Gravar</translation>
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
        <translation>Gravar ou pausar</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Parar e salvar</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Mostrar gravações</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Remover ícone</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>O gravador não está em execução.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>O gravador não responde neste canal. Inicie-o com o mesmo --companion-channel.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>O ícone já está lá.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Não há barramento de sessão e, sem ele, não há ícone.</translation>
    </message>
</context>
</TS>
