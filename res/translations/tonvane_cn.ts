<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>本程序是自由软件，依照 GNU 通用公共许可证第 2 版或更高版本发布。本程序不提供任何担保。</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  正在复制文件</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>：无法完成，因为文件不存在。</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>：无法完成，因为文件路径不存在。</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>，因为打开的文件过多。</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>：无法完成，因为禁止访问该文件。</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>：无法完成，因为文件名、文件夹名或磁盘名不正确。</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>：无法完成，因为文件名或扩展名过长。</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>：无法完成，因为系统无法访问该文件。</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>抱歉，</translation>
    </message>
    <message>
        <source>the file </source>
        <translation>文件 </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> 无法完成。 </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> 无法打开</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>抱歉，不支持此类型的文件。</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>抱歉，文件 </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>抱歉，MP3 文件不提供峰值电平测试；请使用平均电平测试。</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>抱歉，文件 </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> 有错误。 </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>抱歉，文件 </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> 的测试失败。</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  测试已停止</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>测试已停止，因为文件未被打开。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  正在测试音量电平</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>抱歉，测试已停止，因为无法创建文件的临时副本 </translation>
    </message>
    <message>
        <source>.</source>
        <translation>。</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>测试已停止，因为文件有错误。</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>克罗地亚语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>斯洛文尼亚语</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>需要重新启动程序才能切换界面语言。</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>抱歉，本程序已有一个副本正在运行。因此不会启动这个副本。</translation>
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
        <translation>灰色(&amp;G)</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>关于 Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>测量音频文件的响度：峰值电平，以及相对于 89 dB 参考值的平均电平。</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>电子邮件：</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>网站：</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>使用的库：</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>请稍候，正在搜索文件</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>正在处理：</translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>文件列表</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>调整所有列宽</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>调整列宽</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>批处理...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>正在测试的文件：</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>批量测试...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>预计完成时间：</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>待处理列表包含：</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>批处理完成后关闭窗口</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>已测试：</translation>
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
        <translation>批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>您要打开哪种类型的批处理？</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>批处理类型</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>最大化批处理窗口</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>请拖入文件或文件夹（或点击“添加文件”、“添加文件夹”或“添加多个文件夹”）。程序会自动只选择支持的文件。</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> 列表包含： </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> 已检查总数： </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>添加文件(&amp;A)...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>添加文件夹(&amp;D)...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>添加多个文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>添加播放列表(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>下移(&amp;M)</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>上移(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>全部勾选(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>全部取消勾选(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>全部移除(&amp;E)</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>操作(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>播放/暂停(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>音量(&amp;V)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>减小</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>上一首(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一首(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>总在最前(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>使用数据库(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>清空数据库(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>数据库(&amp;D)...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>使用所有处理器核心(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Tonvane 帮助</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>添加文件 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>添加文件夹 (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>添加多个文件夹 (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>添加播放列表 (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>下移 (Alt+下)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>上移 (Alt+上)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>全部勾选 (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>全部取消勾选 (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>移除 (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>全部移除 (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>帮助 (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>关闭 (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>测试峰值电平</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>测试平均电平</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>批量测试</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>播放器</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>请稍候，正在准备文件列表</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>添加文件 </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>添加播放列表</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>添加文件夹 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>选择多个文件夹</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>添加多个文件夹 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>抱歉，您没有选择任何文件。请选择文件。</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>数据库 - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>数据库最大大小：</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>数据库当前大小： </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> 采样位数</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> 声道</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> 采样率</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> 音频格式</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> 大小</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>批处理(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>显示(&amp;S)</translation>
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
        <translation>播放器(&amp;P)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>随机播放(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>重复(&amp;E)</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>全部重复(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>完成时提示音(&amp;B)</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>Tonvane 帮助(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>打开 Tonvane 主页(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>关于 Tonvane(&amp;A)...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>打开 (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>批处理</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>批处理 (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>退出 (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> 属性</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>削波</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>播放/暂停 (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>停止 (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>随机播放 (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>重复 (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>静音 (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>上一首 (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>下一首 (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
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
        <translation>时间：</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>总时间：</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(毫秒)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>音量电平测试</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再显示</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>界面语言(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>抱歉，未安装本程序的帮助。</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>抱歉，无法打开帮助页面 %1。</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>初始化 faad 解码库时出错。 </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>在 MP4 文件中找不到正确的 AAC 音轨。</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>读取 MP4 文件失败。</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> 无法创建。</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> 的声音数据格式不受本程序支持。</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> 文件的声道数多于 2 个。</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> 是空的，不含任何声音数据。</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>文件有错误，已停止打开。</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> 无法创建文件映射</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>因此测试将停止。</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>。它由早于 3.99 的 Monkey&apos;s Audio 版本创建，本程序无法解码。</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>。它不是 Monkey&apos;s Audio 文件，或者文件头已损坏。</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>抱歉，打开解码流时出错。</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> 文件 </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> 在声音数据中途结束。</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> 已损坏：其声音数据未通过校验。</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  音频格式  APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>抱歉，测试已停止，因为文件 </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> 是空的，不含声音数据。请选择其他文件。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>数据流中的错误导致解码器失去同步。</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>解码器遇到损坏的帧头。</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> 帧数据与结尾的 CRC 不符。</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>解码器在数据流中遇到被使用的保留字段。</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  音频格式  FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave 文件 (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Wav 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> 不含任何 Wav 文件。</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3 文件 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Mp3 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> 不含任何 Mp3 文件。</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC 文件 (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>FLAC 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> 不含任何 FLAC 文件。</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg 文件 (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Ogg 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> 不含任何 Ogg 文件。</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE 文件 (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>APE 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> 不含任何 APE 文件。</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC 文件 (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Mp4 (AAC, ALAC) 批处理 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> 不含任何 Mp4 文件。</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U 播放列表 (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  比特率    </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  声道      </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  采样率    </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  音频格式  MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  音频格式  MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  音频格式  MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> 无法完成。</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  比特率    </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  模式      立体声</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  模式      联合立体声</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  模式      双声道</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  模式      单声道</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>编码方式</translation>
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
        <translation>将数据文件映射到进程地址空间</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  大小      </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>为复制文件创建流描述符的副本</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> 不含声音数据。因此无法测试。</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  音频格式  Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>抱歉，文件名不正确。请选择其他文件。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>抱歉，扩展名为 &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> 的文件名不受本程序支持。请选择其他文件。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> 字节</translation>
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
        <translation>打开      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> 的声音数据格式不受本程序支持。因此无法测试。请选择其他文件。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  采样位数  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  声道      </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  采样率    </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>无法打开数据转换流</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  音频格式  PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> 因此无法测试。请选择其他文件。
是否打开文件选择对话框？</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>，是空的，不含任何声音数据。</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> 不含 Wav 文件特有的声音数据。</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  采样位数  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  采样位数  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  采样位数  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  采样位数  32</translation>
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
        <translation>单声道</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>左声道</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>右声道</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>无法创建“文件映射对象”</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  声道      1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  声道      2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  音频格式  PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>抱歉，对于文件 </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> 无法移动文件当前位置的指针。 </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>因此保存操作将停止。</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>抱歉，写入输出文件时出错： </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> 抱歉，程序无法继续处理该文件： </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>最大电平</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>音量电平</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>（峰值电平）</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>（平均电平）</translation>
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
        <translation>最大电平 </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> 打开文件的临时副本 </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>抱歉，打开文件 &quot;TestLog.csv&quot; 时出错。</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>数据库已成功清空</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>没有可用的声音设备。</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;音量&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;上一首&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;下一首&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;重复&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;定位&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;播放&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;停止&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;静音&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;暂停&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;随机播放&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>没有错误。</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>找不到空闲的声道来播放声音。 </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>指定的声道已被重新用于播放其他声音。 </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>加载文件时出错。 </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>无法执行定位操作。 </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>文件在读到任何声音之前就结束了。 </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>找不到文件。 </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>不支持的文件或音频格式。 </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>声音系统尚未准备好执行此调用。 </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>使用了无效的对象句柄。 </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>向此函数传递了无效的参数。 </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>向此函数传递了无效的定位位置。 </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>内存或资源不足。 </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>初始化声音输出设备时出错。 </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>声音系统尚未初始化。 </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>未知错误。</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> 找不到。</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>抱歉，文件夹 </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> 无法读取： </translation>
    </message>
    <message>
        <source>№</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>音频格式</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>位数</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> 未测试</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> 已测试</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> 总计：</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>大小： </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>采样率： </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>位数： </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>模式：</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>声道： </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>时长： </translation>
    </message>
    <message>
        <source> file</source>
        <translation> 个文件</translation>
    </message>
    <message>
        <source> files</source>
        <translation> 个文件</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>总时长： </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>抱歉，您没有选择任何文件。因此批量测试已停止。</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> 小时 </translation>
    </message>
    <message>
        <source> min </source>
        <translation> 分 </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> from </source>
        <translation> / </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> 已完成</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>请稍候，正在进行批量测试</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>测试已暂停</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>测试已取消</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>抱歉，打开的文件夹 </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>抱歉，音量电平测试已停止，因为文件 </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> 立体声</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> 联合立体声</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> 双声道</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> 单声道</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE 浮点</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM（脉冲编码调制）</translation>
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
        <translation>FLAC（自由无损音频编解码器）</translation>
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
        <translation>左： </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>；右： </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>单声道： </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>抱歉，无法打开主页 %1。</translation>
    </message>
</context>
</TS>
