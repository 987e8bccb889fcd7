<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Este programa é software livre sob a Licença Pública Geral GNU, versão 2 ou posterior. Ele é fornecido sem nenhuma garantia.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Copiando o arquivo</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: impossível, porque o arquivo não existe.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: impossível, porque o caminho do arquivo não existe.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, porque há arquivos demais abertos.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: impossível, porque o acesso ao arquivo foi negado.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: impossível, porque o nome do arquivo, da pasta ou do disco é inválido.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: impossível, porque o nome do arquivo ou sua extensão é longo demais.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: impossível, porque o sistema não consegue acessar o arquivo.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Desculpe: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>o arquivo </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> impossível. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> não pode ser aberto</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Desculpe, este tipo de arquivo não é compatível.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Desculpe: o arquivo </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Desculpe, o teste de nível de pico não está disponível para arquivos MP3; use o teste de nível médio.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Desculpe: o arquivo </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> contém erros. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Desculpe: o teste do arquivo </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> falhou.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Teste interrompido</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>O teste foi interrompido porque o arquivo não foi aberto para ele.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Testando o nível de volume</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Desculpe, o teste foi interrompido porque não foi possível criar uma cópia temporária do arquivo </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>O teste foi interrompido porque o arquivo contém erros.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemão</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Holandês</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norueguês</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dinamarquês</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polonês</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Croata</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinês</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tcheco</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Esloveno</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Reinicie o programa para mudar o idioma da interface.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Desculpe, já existe uma cópia deste programa em execução. Por isso esta cópia não será iniciada.</translation>
    </message>
    <message>
        <source>&amp;Windows XP</source>
        <translation>&amp;Windows XP</translation>
    </message>
    <message>
        <source>&amp;Office XP</source>
        <translation>&amp;Office XP</translation>
    </message>
    <message>
        <source>O&amp;ffice 2000</source>
        <translation>O&amp;ffice 2000</translation>
    </message>
    <message>
        <source>Off&amp;ice 2003</source>
        <translation>Off&amp;ice 2003</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Cinza</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Sobre o Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Mede o volume de arquivos de áudio: o nível de pico e o nível médio em relação à referência de 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Site:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliotecas em uso:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Aguarde, procurando os arquivos</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Processando: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Lista de arquivos</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Ajustar todas as colunas</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Ajustar a coluna</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Processamento em lote...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Teste do arquivo:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Teste em lote...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Término previsto:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>A lista de processamento contém:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Fechar a janela ao terminar o processamento em lote</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Testados:</translation>
    </message>
    <message>
        <source>Mp3, Wav (MPEG 1.0 Layer III)</source>
        <translation>Mp3, Wav (MPEG 1.0 Layer III)</translation>
    </message>
    <message>
        <source>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</source>
        <translation>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</translation>
    </message>
    <message>
        <source>Wav (Microsoft Wave RIFF)</source>
        <translation>Wav (Microsoft Wave RIFF)</translation>
    </message>
    <message>
        <source>FLAC</source>
        <translation>FLAC</translation>
    </message>
    <message>
        <source>Ogg Vorbis</source>
        <translation>Ogg Vorbis</translation>
    </message>
    <message>
        <source>APE (Monkey’s Audio)</source>
        <translation>APE (Monkey’s Audio)</translation>
    </message>
    <message>
        <source>Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Que tipo de processamento em lote deseja abrir?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Tipo de processamento em lote</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maximizar a janela do processamento em lote</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Arraste arquivos ou pastas para cá (ou use Adicionar arquivos, Adicionar pasta ou Adicionar pastas). O programa escolhe automaticamente só os arquivos compatíveis.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> A lista contém: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Total verificado: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Adicionar &amp;arquivos...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Adicionar &amp;pasta...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Adicionar pa&amp;stas...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Adicionar &amp;listas de reprodução...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Marcar &amp;todos</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Desmarcar todos</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Remover t&amp;udo</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>A&amp;ções</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Teste</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Reprodução</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Reproduzir / &amp;pausar</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Pa&amp;rar</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Diminuir</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Pró&amp;ximo</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Ja&amp;nela</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Sempre &amp;visível</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Usar banco de dados</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Lim&amp;par banco de dados</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Banco de dados...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Usar todos os &amp;núcleos do processador</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Ajuda do Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Adicionar arquivos (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Adicionar pasta (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Adicionar pastas (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Adicionar listas de reprodução (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Mover para baixo (Alt+Baixo)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Mover para cima (Alt+Cima)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Marcar todos (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Desmarcar todos (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Remover (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Remover tudo (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Ajuda (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Fechar (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Testar nível de pico</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Testar nível médio</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Teste em lote</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reprodutor</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Aguarde, preparando a lista de arquivos</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Adicionar arquivos </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Adicionar listas de reprodução</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Escolha a pasta</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Adicionar pasta - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Escolha as pastas</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Adicionar pastas - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Desculpe, você não selecionou nenhum arquivo. Selecione um arquivo.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Banco de dados - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Tamanho máximo do banco de dados:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Tamanho atual do banco de dados: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bits por amostra</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Canais</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frequência</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Formato de áudio</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamanho</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Processamento em &amp;lote...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Reprodutor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mudo</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Aleatório</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>R&amp;epetir</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Repetir &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Bipe ao terminar</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Ajuda do Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Abrir o &amp;site do Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>S&amp;obre o Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Abrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lote</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Processamento em lote (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Sair (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Arquivo:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Propriedades</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Reproduzir / pausar (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Parar (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Aleatório (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Repetir (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Mudo (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Anterior (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Próximo (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Tempo total:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Teste do nível de volume</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Não mostrar novamente</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Idioma da interface</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temas</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Desculpe, a ajuda do programa não está instalada.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Desculpe, não é possível abrir a página de ajuda %1.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Erro ao iniciar a biblioteca decodificadora faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>não há uma faixa de áudio AAC válida no arquivo MP4.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>A leitura do arquivo MP4 falhou.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> não pode ser criado.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> tem um formato de dados de som que o programa não suporta.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> O arquivo tem mais de 2 canais.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> está vazio e não contém dados de som.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>A abertura foi interrompida porque o arquivo contém erros.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> criar um mapeamento do arquivo na memória é impossível</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Por isso o teste será interrompido.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Ele foi criado por uma versão do Monkey&apos;s Audio anterior à 3.99, que o programa não decodifica.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Não é um arquivo Monkey&apos;s Audio, ou seu cabeçalho está danificado.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Desculpe, ocorreu um erro ao abrir o fluxo de decodificação.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> O arquivo </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> termina no meio dos seus dados de som.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> está danificado: seus dados de som não passam na verificação.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Formato           APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Desculpe, o teste foi interrompido porque o arquivo </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> está vazio e não contém dados de som. Escolha outro arquivo.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Um erro no fluxo fez o decodificador perder a sincronização.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>O decodificador encontrou um cabeçalho de quadro danificado.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Os dados do quadro não conferem com o CRC do final.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>O decodificador encontrou campos reservados em uso no fluxo.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Formato           FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Arquivos Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> não contém arquivos Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Arquivos MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> não contém arquivos Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Arquivos FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> não contém arquivos FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Arquivos Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> não contém arquivos Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Arquivos APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> não contém arquivos APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Arquivos AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Processamento em lote Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> não contém arquivos Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Lista de reprodução M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Taxa de bits      </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Canais            </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frequência        </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Formato           MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Formato           MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Formato           MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> não pôde ser realizado.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Taxa de bits      </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Modo              Estéreo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Modo              Estéreo conjunto</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modo              Canal duplo</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Modo              Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Método de codificação</translation>
    </message>
    <message>
        <source>   </source>
        <translation>   </translation>
    </message>
    <message>
        <source>VBR</source>
        <translation>VBR</translation>
    </message>
    <message>
        <source>CBR</source>
        <translation>CBR</translation>
    </message>
    <message>
        <source>carry out data-file-mapping to the process&apos;s address space is</source>
        <translation>mapear o arquivo no espaço de endereços do processo é</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Tamanho           </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>criar uma cópia do descritor para copiar o arquivo é</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> não contém dados de som. Por isso o teste é impossível.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Formato           Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Desculpe, o nome do arquivo é inválido. Escolha outro arquivo.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Desculpe, o nome de arquivo com a extensão &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> não é suportado pelo programa. Escolha outro arquivo.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bytes</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Open      </source>
        <translation>Abrir      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> tem um formato de dados de som que o programa não suporta. Por isso o teste é impossível. Escolha outro arquivo.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bits por amostra  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Canais            </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frequência        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Não foi possível abrir um fluxo de conversão de dados</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Formato           PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Por isso o teste é impossível. Escolha outro arquivo.
Deseja escolher um arquivo?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, está vazio e não contém dados de som.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> não contém dados de som típicos de arquivos Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bits por amostra  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bits por amostra  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bits por amostra  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bits por amostra  32</translation>
    </message>
    <message>
        <source>100% = 41 dB</source>
        <translation>100% = 41 dB</translation>
    </message>
    <message>
        <source>100% = 137 dB</source>
        <translation>100% = 137 dB</translation>
    </message>
    <message>
        <source>100% = 185 dB</source>
        <translation>100% = 185 dB</translation>
    </message>
    <message>
        <source>Mono Channel</source>
        <translation>Canal mono</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Canal esquerdo</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Canal direito</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>criar o objeto de mapeamento do arquivo é impossível</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Canais            1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Canais            2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Formato           PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Desculpe: para o arquivo </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> mover a posição atual no arquivo é impossível. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Por isso a gravação será interrompida.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Desculpe, ocorreu um erro de gravação no arquivo de saída: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Desculpe, o programa não pode continuar trabalhando com o arquivo: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Nível máximo</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Nível de volume</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(nível de pico)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(nível médio)</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>100% = </source>
        <translation>100% = </translation>
    </message>
    <message>
        <source>Max Level </source>
        <translation>Nível máx. </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> abrir uma cópia temporária do arquivo </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Desculpe, ocorreu um erro ao abrir o arquivo &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>O banco de dados foi limpo com sucesso</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Nenhum dispositivo de som disponível.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Anterior&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Próximo&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Repetir&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Posição&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Reproduzir&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Parar&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Mudo&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pausar&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Aleatório&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Nenhum erro.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Nenhum canal livre foi encontrado para tocar o som. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>O canal indicado foi reutilizado para tocar outro som. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Erro ao carregar o arquivo. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Não foi possível ir para a posição. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>O arquivo termina antes que algum som possa ser lido. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Arquivo não encontrado. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Formato de arquivo ou de áudio não suportado. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>O sistema de som não está pronto para esta chamada. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Foi usado um identificador de objeto inválido. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Um parâmetro inválido foi passado para esta função. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Uma posição inválida foi passada para esta função. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Memória ou recursos insuficientes. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Erro ao iniciar o dispositivo de saída de som. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>O sistema de som ainda não foi iniciado. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Erro desconhecido.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> não foi encontrada.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Desculpe: a pasta </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> não pode ser lida: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Nº</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganho</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Formato de áudio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> não testados</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testados</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Total:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Tamanho: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frequência: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bits: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Canais: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Duração: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> arquivo</translation>
    </message>
    <message>
        <source> files</source>
        <translation> arquivos</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Duração total: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Desculpe, você não selecionou nenhum arquivo. Por isso o teste em lote foi interrompido.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> h </translation>
    </message>
    <message>
        <source> min </source>
        <translation> min </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source> from </source>
        <translation> de </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> concluído</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Aguarde, teste em lote em andamento</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Teste suspenso</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Teste cancelado</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Desculpe: a pasta aberta </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Desculpe, o teste do nível de volume foi interrompido porque o arquivo </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Estéreo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Estéreo conjunto</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Canal duplo</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> Mono</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE Float</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM (modulação por código de pulso)</translation>
    </message>
    <message>
        <source>MPEG-4 AAC</source>
        <translation>MPEG-4 AAC</translation>
    </message>
    <message>
        <source>MPEG-2 AAC</source>
        <translation>MPEG-2 AAC</translation>
    </message>
    <message>
        <source>MPEG4 ALAC</source>
        <translation>MPEG4 ALAC</translation>
    </message>
    <message>
        <source>FLAC (Free Lossless Audio Codec)</source>
        <translation>FLAC (Free Lossless Audio Codec)</translation>
    </message>
    <message>
        <source>ABR</source>
        <translation>ABR</translation>
    </message>
    <message>
        <source>APE Monkey&apos;s Audio</source>
        <translation>APE Monkey&apos;s Audio</translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Esquerdo: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Direito: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Canal mono: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Desculpe, não é possível abrir a página inicial %1.</translation>
    </message>
</context>
</TS>
