<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>ディスク使用量</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% 利用可能</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>ファイルシステムが選択されていません</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>優先度の変更</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>非常に高い優先度</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>高い優先度</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>通常の優先度</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>低い優先度</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>非常に低い優先度</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>マウントポイント</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>全容量</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>利用可能な容量</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル数</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>名前、コマンドライン、ユーザー、PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>プロセスを検索</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 件中 %1 件</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>システムモニター</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>オペレーティングシステム</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>カーネル</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>空きメモリー</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>利用可能</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>マスク</translation>
    </message>
    <message>
        <source>In</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>間隔の変更</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>更新の間隔 (秒) を設定できます。
 対象のページ: </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>プロセスにシグナルを送信できません。理由: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>優先度を変更できません。理由: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>スリープ中</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>割り込み不可</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>ゾンビ</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>スワップ中</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>終了済み</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>仮想メモリー</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>共有メモリー</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>nice 値</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>親 PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU 時間</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>コマンドライン</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサー</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>プロセスが見つかりません</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>プロセスの停止</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>本当にプロセスを停止しますか？
後で再開できます。</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>プロセスの再開</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>本当にプロセスを再開しますか？</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>プロセスの終了</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>本当にプロセスを終了しますか？
プロセスは正常に終了できます。</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>プロセスの強制終了</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>本当にプロセスを強制終了しますか？
プロセスは正常に終了できません。
プロセスのすべてのデータが失われる可能性があります。</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>不明なシグナル</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>ツリー表示</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>すべてのプロセス</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>自分のプロセス</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>プロセスを停止</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>プロセスを再開</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>プロセスを終了</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>プロセスを強制終了</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>優先度を変更...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>プロセスを検索...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>完全なツリー</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>行をコピー</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>or</source>
        <translation>または</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>使い方: zarn-system-monitor [タブ]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>タブには次のものを指定できます:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - 1 ページ目: システムの全般情報</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - 2 ページ目: プロセスの一覧</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - 3 ページ目: ファイルシステムの一覧</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - 4 ページ目: ネットワークの情報</translation>
    </message>
    <message>
        <source> B</source>
        <translation> B</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QProg</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Sort &amp;by</source>
        <translation>並べ替え(&amp;B)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>昇順</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>降順</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>システムモニターを起動できません: %1 を読み取れません。完全な proc ファイルシステムが /proc にマウントされている必要があります。</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>ネットワークトラフィック</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>受信: %1、送信: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>更新間隔</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>「全般」の更新間隔</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>「プロセス」の更新間隔</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>「ファイルシステム」の更新間隔</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>「ネットワーク」の更新間隔</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>「全般」</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>「プロセス」</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>「ファイルシステム」</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>「ネットワーク」</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>表示する列</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU 使用率</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>CPU コア %1 使用率</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>不明な OS</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>システムモニターでは、システムの全般情報、プロセス、マウントポイント、ネットワークの統計情報を確認できます。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>これは GNU 一般公衆利用許諾書 (GNU GPL) バージョン 3 またはそれ以降 (GPL-3.0-or-later) に基づく自由ソフトウェアです。いかなる保証もありません。</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このソフトウェアについて</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt について</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
</context>
</TS>
