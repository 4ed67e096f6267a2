<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>磁盘使用情况</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% 可用</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>未选择文件系统</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>更改优先级</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>极高优先级</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>高优先级</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>普通优先级</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>低优先级</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>极低优先级</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>挂载点</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>总空间</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>剩余空间</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>可用空间</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件数</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>名称、命令行、用户或 PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>查找进程</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>无响应</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>系统监视器</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>操作系统</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>内核</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>剩余空间</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>空闲内存</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>掩码</translation>
    </message>
    <message>
        <source>In</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>更改间隔</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>您可以设置更新的时间间隔（以秒为单位）
 页面： </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>无法向进程发送信号。原因： </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>无法更改优先级。原因： </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>睡眠中</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>不可中断</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>僵死</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>交换中</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>已死</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
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
        <translation>用户</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>虚拟内存</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>共享内存</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice 值</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>父进程 PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU 时间</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>命令行</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>未找到进程</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>停止进程</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>确定要停止该进程吗？
稍后可以让它继续运行。</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>继续进程</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>确定要让该进程继续运行吗？</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>终止进程</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>确定要终止该进程吗？
该进程可以正常结束。</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>杀死进程</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>确定要杀死该进程吗？
该进程将无法正常结束。
该进程的所有数据都可能丢失。</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>未知信号</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>树状视图</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>所有进程</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>我的进程</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>停止进程</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>继续进程</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>终止进程</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>杀死进程</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>更改优先级...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>查找进程...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>完整树</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>复制行</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>or</source>
        <translation>或</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>用法：zarn-system-monitor [标签页]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>标签页可以指定为：</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - 第一页，系统常规信息</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - 第二页，进程列表</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - 第三页，文件系统列表</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - 第四页，网络信息</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>排序方式(&amp;B)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>升序</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>降序</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>系统监视器无法启动：无法读取 %1。它需要挂载在 /proc 的完整 proc 文件系统。</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>网络流量</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>接收：%1，发送：%2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>更新间隔</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>“常规”页面间隔</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>“进程”页面间隔</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>“文件系统”页面间隔</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>“网络”页面间隔</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>“常规”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>“进程”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>“文件系统”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>“网络”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>可见列</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU 负载</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>CPU 核心 %1 负载</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>未知操作系统</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>系统监视器可让您查看系统的常规信息、进程信息、挂载点和网络统计。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>本程序是自由软件，依据 GNU 通用公共许可证第 3 版或更高版本（GPL-3.0-or-later）发布。本程序不提供任何担保。</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>关于 Qt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
</context>
</TS>
