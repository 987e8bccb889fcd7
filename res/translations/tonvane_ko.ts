<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>이 프로그램은 GNU 일반 공중 사용 허가서 버전 2 이상에 따라 배포되는 자유 소프트웨어입니다. 어떠한 보증도 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  파일 복사 중</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: 파일이 없으므로 할 수 없습니다.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: 파일 경로가 없으므로 할 수 없습니다.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, 열린 파일이 너무 많기 때문입니다.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: 파일에 대한 접근이 금지되어 있으므로 할 수 없습니다.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: 파일, 폴더 또는 디스크 이름이 올바르지 않으므로 할 수 없습니다.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: 파일 이름이나 확장자가 너무 길어서 할 수 없습니다.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: 시스템이 파일에 접근할 수 없으므로 할 수 없습니다.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>죄송합니다. </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>파일 </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> 할 수 없습니다. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation>을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>죄송합니다. 이 형식의 파일은 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>죄송합니다. 파일 </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>죄송합니다. MP3 파일에는 피크 레벨 테스트가 없습니다. 평균 레벨 테스트를 사용하십시오.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>죄송합니다. 파일 </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation>에 오류가 있습니다. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>죄송합니다. 파일 </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation>의 테스트에 실패했습니다.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  테스트 중지됨</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>파일이 테스트용으로 열리지 않아 테스트를 중지했습니다.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  음량 레벨 테스트 중</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>죄송합니다. 다음 파일의 임시 사본을 만들지 못해 테스트를 중지했습니다: </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>파일에 오류가 있어 테스트를 중지했습니다.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>러시아어</translation>
    </message>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>German</source>
        <translation>독일어</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>스페인어</translation>
    </message>
    <message>
        <source>French</source>
        <translation>프랑스어</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>이탈리아어</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>네덜란드어</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>포르투갈어</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>노르웨이어</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>덴마크어</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>터키어</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>폴란드어</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>크로아티아어</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>중국어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>체코어</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>슬로베니아어</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>인터페이스 언어를 바꾸려면 프로그램을 다시 시작해야 합니다.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>죄송합니다. 이 프로그램이 이미 실행 중입니다. 따라서 이 사본은 시작하지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Windows XP</source>
        <translation>Windows XP(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Office XP</source>
        <translation>Office XP(&amp;O)</translation>
    </message>
    <message>
        <source>O&amp;ffice 2000</source>
        <translation>Office 2000(&amp;F)</translation>
    </message>
    <message>
        <source>Off&amp;ice 2003</source>
        <translation>Office 2003(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>회색(&amp;G)</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Tonvane 정보</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>오디오 파일의 음량을 측정합니다: 피크 레벨과 89 dB 기준에 대한 평균 레벨.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>전자 메일:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>웹 사이트:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>사용 중인 라이브러리:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>잠시 기다리십시오. 파일을 찾는 중입니다</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>처리 중: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>파일 목록</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>모든 열 너비 맞춤</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>열 너비 맞춤</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>일괄 처리...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>테스트 중인 파일:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>일괄 테스트...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>예상 완료 시각:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>처리 목록 항목:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>일괄 처리가 끝나면 창 닫기</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>테스트함:</translation>
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
        <translation>일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>어떤 종류의 일괄 처리를 여시겠습니까?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>일괄 처리 종류</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>일괄 처리 창 최대화</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>폴더:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>파일이나 폴더를 여기로 끌어 놓으십시오(또는 파일 추가, 폴더 추가, 여러 폴더 추가를 누르십시오). 지원하는 파일만 자동으로 고릅니다.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> 목록 항목: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> 검사한 총계: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>파일 추가(&amp;A)...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>폴더 추가(&amp;D)...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>여러 폴더 추가(&amp;F)...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>재생 목록 추가(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>아래로 이동(&amp;M)</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>위로 이동(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>모두 선택(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>모두 선택 해제(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>모두 제거(&amp;E)</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>작업(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>테스트(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>재생(&amp;P)</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>재생/일시 정지(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>정지(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>음량(&amp;V)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>크게</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>작게</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>이전(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>다음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>창(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>항상 위(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>옵션(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>데이터베이스 사용(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>데이터베이스 비우기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>데이터베이스(&amp;D)...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>모든 프로세서 코어 사용(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Tonvane 도움말</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>파일 추가 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>폴더 추가 (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>여러 폴더 추가 (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>재생 목록 추가 (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>아래로 이동 (Alt+아래쪽)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>위로 이동 (Alt+위쪽)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>모두 선택 (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>모두 선택 해제 (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>제거 (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>모두 제거 (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>도움말 (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>닫기 (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>피크 레벨 테스트</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>평균 레벨 테스트</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>일괄 테스트</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>플레이어</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>잠시 기다리십시오. 파일 목록을 준비하는 중입니다</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>파일 추가 </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>재생 목록 추가</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>폴더 추가 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>여러 폴더 선택</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>여러 폴더 추가 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>죄송합니다. 파일을 선택하지 않았습니다. 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>데이터베이스 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>데이터베이스 최대 크기:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>현재 데이터베이스 크기: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>비우기</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> 샘플당 비트</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> 채널</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> 샘플링 속도</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> 오디오 형식</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> 크기</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>열기(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>일괄 처리(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>표시(&amp;S)</translation>
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
        <translation>플레이어(&amp;P)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>무작위 재생(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>반복(&amp;E)</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>전체 반복(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>완료 시 알림음(&amp;B)</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>Tonvane 도움말(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Tonvane 홈페이지 열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>Tonvane 정보(&amp;A)...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>열기 (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>일괄</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>일괄 처리 (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>끝내기 (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> 속성</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>클리핑</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>재생/일시 정지 (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>정지 (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>무작위 재생 (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>반복 (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>음소거 (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>이전 (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>다음 (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
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
        <translation>시간:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>전체 시간:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>음량 레벨 테스트</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>다시 표시하지 않음</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>인터페이스 언어(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>테마(&amp;T)</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>죄송합니다. 프로그램 도움말이 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>죄송합니다. 도움말 페이지 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>faad 디코더 라이브러리를 초기화하는 중 오류가 발생했습니다. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>MP4 파일에서 올바른 AAC 오디오 트랙을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>MP4 파일을 읽지 못했습니다.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation>을(를) 만들 수 없습니다.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation>의 소리 데이터 형식은 프로그램에서 지원하지 않습니다.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> 파일의 채널이 2개보다 많습니다.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation>은(는) 비어 있고 소리 데이터가 없습니다.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>파일에 오류가 있어 열기를 중지했습니다.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> 파일 매핑을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>따라서 테스트를 중지합니다.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. 프로그램이 디코딩하지 않는 3.99 이전 버전의 Monkey&apos;s Audio로 만들어졌습니다.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Monkey&apos;s Audio 파일이 아니거나 헤더가 손상되었습니다.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>죄송합니다. 디코딩 스트림을 여는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> 파일 </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation>은(는) 소리 데이터 중간에서 끝납니다.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation>은(는) 손상되었습니다: 소리 데이터가 검사를 통과하지 못합니다.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  오디오 형식  APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>죄송합니다. 다음 파일 때문에 테스트를 중지했습니다: </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> 파일이 비어 있고 소리 데이터가 없습니다. 다른 파일을 선택하십시오.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>스트림 오류로 인해 디코더가 동기를 잃었습니다.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>디코더가 손상된 프레임 헤더를 발견했습니다.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> 프레임 데이터가 끝의 CRC와 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>디코더가 스트림에서 사용 중인 예약 필드를 발견했습니다.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  오디오 형식  FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave 파일 (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Wav 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation>에 Wav 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3 파일 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Mp3 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation>에 Mp3 파일이 없습니다.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC 파일 (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>FLAC 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation>에 FLAC 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg 파일 (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Ogg 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation>에 Ogg 파일이 없습니다.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE 파일 (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>APE 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation>에 APE 파일이 없습니다.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC 파일 (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Mp4 (AAC, ALAC) 일괄 처리 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation>에 Mp4 파일이 없습니다.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>모든 파일 (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U 재생 목록 (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  비트 전송률  </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  채널         </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  샘플링 속도  </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  오디오 형식  MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  오디오 형식  MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  오디오 형식  MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation>의 테스트를 수행할 수 없습니다.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  비트 전송률  </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  모드         스테레오</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  모드         조인트 스테레오</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  모드         듀얼 채널</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  모드         모노</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>인코딩 방식</translation>
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
        <translation>데이터 파일을 프로세스 주소 공간에 매핑하는 것이</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  크기         </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>파일 복사용 스트림 설명자의 사본을 만드는 것이</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation>에 소리 데이터가 없습니다. 따라서 테스트할 수 없습니다.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  오디오 형식  Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>죄송합니다. 파일 이름이 올바르지 않습니다. 다른 파일을 선택하십시오.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>죄송합니다. 확장자가 &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>인 파일 이름은 프로그램에서 지원하지 않습니다. 다른 파일을 선택하십시오.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> 바이트</translation>
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
        <translation>열기      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation>의 소리 데이터 형식은 프로그램에서 지원하지 않습니다. 따라서 테스트할 수 없습니다. 다른 파일을 선택하십시오.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  샘플당 비트  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  채널         </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  샘플링 속도  </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>데이터 변환 스트림을 열지 못했습니다</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  오디오 형식  PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> 따라서 테스트할 수 없습니다. 다른 파일을 선택하십시오.
파일 선택 대화 상자를 여시겠습니까?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, 비어 있고 소리 데이터가 없습니다.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation>에 Wav 파일 특유의 소리 데이터가 없습니다.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  샘플당 비트  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  샘플당 비트  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  샘플당 비트  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  샘플당 비트  32</translation>
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
        <translation>모노 채널</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>왼쪽 채널</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>오른쪽 채널</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>파일 매핑 개체를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  채널         1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  채널         2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  오디오 형식  PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>죄송합니다. 파일 </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation>의 현재 위치 포인터를 옮길 수 없습니다. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>따라서 저장을 중지합니다.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>죄송합니다. 출력 파일에 쓰는 중 오류가 발생했습니다: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> 죄송합니다. 프로그램이 다음 파일로 작업을 계속할 수 없습니다: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>최대 레벨</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>음량 레벨</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(피크 레벨)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(평균 레벨)</translation>
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
        <translation>최대 레벨 </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> 다음 파일의 임시 사본 열기 </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>죄송합니다. &quot;TestLog.csv&quot; 파일을 여는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>데이터베이스를 비웠습니다</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>사용할 수 있는 사운드 장치가 없습니다.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;음량&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;이전&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;다음&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;반복&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;탐색&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;재생&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;정지&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;음소거&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;일시 정지&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;무작위 재생&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>오류가 없습니다.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>소리를 재생할 빈 채널을 찾을 수 없습니다. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>지정한 채널이 다른 소리를 재생하는 데 다시 사용되었습니다. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>파일을 불러오는 중 오류가 발생했습니다. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>탐색을 수행할 수 없습니다. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>소리를 읽기 전에 파일이 끝났습니다. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>파일을 찾을 수 없습니다. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>지원하지 않는 파일 또는 오디오 형식입니다. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>사운드 시스템이 이 호출을 처리할 준비가 되지 않았습니다. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>잘못된 개체 핸들을 사용했습니다. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>이 함수에 잘못된 매개변수를 전달했습니다. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>이 함수에 잘못된 탐색 위치를 전달했습니다. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>메모리 또는 리소스가 부족합니다. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>사운드 출력 장치를 초기화하는 중 오류가 발생했습니다. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>사운드 시스템이 아직 초기화되지 않았습니다. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>알 수 없는 오류입니다.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation>을(를) 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>죄송합니다. 폴더 </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation>을(를) 읽을 수 없습니다: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>샘플링 속도</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>오디오 형식</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>비트</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> 테스트 안 함</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> 테스트함</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> 총계:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>크기: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>샘플링 속도: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>비트: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>모드:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>채널: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>길이: </translation>
    </message>
    <message>
        <source> file</source>
        <translation>개 파일</translation>
    </message>
    <message>
        <source> files</source>
        <translation>개 파일</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>전체 길이: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>죄송합니다. 선택한 파일이 없습니다. 따라서 일괄 테스트를 중지합니다.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> 시간 </translation>
    </message>
    <message>
        <source> min </source>
        <translation> 분 </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> 초</translation>
    </message>
    <message>
        <source> from </source>
        <translation> / </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> 완료</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>잠시 기다리십시오. 일괄 테스트 중입니다</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>테스트 일시 중지됨</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>테스트 취소됨</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>죄송합니다. 열린 폴더 </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>죄송합니다. 다음 파일 때문에 음량 레벨 테스트를 중지했습니다: </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> 스테레오</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> 조인트 스테레오</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> 듀얼 채널</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> 모노</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE 부동 소수점</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM (펄스 부호 변조)</translation>
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
        <translation>왼쪽: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; 오른쪽: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>모노 채널: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>죄송합니다. 홈페이지 %1을(를) 열 수 없습니다.</translation>
    </message>
</context>
</TS>
