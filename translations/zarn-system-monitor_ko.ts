<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>디스크 사용량</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%1% 사용 가능</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>선택한 파일 시스템 없음</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>우선순위 변경</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>매우 높은 우선순위</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>높은 우선순위</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>보통 우선순위</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>낮은 우선순위</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>매우 낮은 우선순위</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>마운트 지점</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>전체 공간</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>남은 공간</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>사용 가능한 공간</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일 수</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>이름, 명령줄, 사용자 또는 PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>프로세스 찾기</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2개 중 %1개</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>응답 없음</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>시스템 모니터</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>운영 체제</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>커널</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>아키텍처</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>남은 공간</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>남은 메모리</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>프로세스</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>파일 시스템</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>마스크</translation>
    </message>
    <message>
        <source>In</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>송신</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>오류</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>간격 변경</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>업데이트 시간 간격(초)을 설정할 수 있습니다.
 페이지: </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>프로세스에 시그널을 보낼 수 없습니다. 이유: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>우선순위를 변경할 수 없습니다. 이유: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>중단 불가</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>좀비</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>정지됨</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>스와핑 중</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>종료됨</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
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
        <translation>사용자</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>가상 메모리</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>공유 메모리</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice 값</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>부모 PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU 시간</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>시작 시각</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>명령줄</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>찾은 프로세스 없음</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>프로세스 정지</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>프로세스를 정말 정지하시겠습니까?
나중에 다시 계속할 수 있습니다.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>프로세스 계속</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>프로세스를 정말 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>프로세스 종료</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>프로세스를 정말 종료하시겠습니까?
프로세스가 정상적으로 종료할 수 있습니다.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>프로세스 강제 종료</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>프로세스를 정말 강제로 종료하시겠습니까?
프로세스가 정상적으로 종료할 수 없습니다.
프로세스의 모든 데이터를 잃을 수 있습니다.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>알 수 없는 시그널</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>트리 보기</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>모두 펼치기</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>모두 접기</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>모든 프로세스</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>내 프로세스</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>프로세스 정지</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>프로세스 계속</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>프로세스 종료</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>프로세스 강제 종료</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>우선순위 변경...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>프로세스 찾기...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>전체 트리</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>행 복사</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>간격</translation>
    </message>
    <message>
        <source>or</source>
        <translation>또는</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>사용법: zarn-system-monitor [탭]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>탭은 다음과 같이 지정할 수 있습니다:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - 첫 번째 페이지, 일반 시스템 정보</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - 두 번째 페이지, 프로세스 목록</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - 세 번째 페이지, 파일 시스템 목록</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - 네 번째 페이지, 네트워크 정보</translation>
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
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
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
        <translation>정렬 기준(&amp;B)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>오름차순</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>내림차순</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>시스템 모니터를 시작할 수 없습니다: %1을(를) 읽을 수 없습니다. 전체 proc 파일 시스템이 /proc에 마운트되어 있어야 합니다.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>송신</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>네트워크 트래픽</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>수신: %1, 송신: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>업데이트 간격</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>“일반” 업데이트 간격</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>“프로세스” 업데이트 간격</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>“파일 시스템” 업데이트 간격</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>“네트워크” 업데이트 간격</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>프로세스</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>“일반”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>“프로세스”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>“파일 시스템”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>“네트워크”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>표시할 열</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU 사용률</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>CPU 코어 %1 사용률</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>알 수 없는 운영 체제</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>시스템 모니터로 일반 시스템 정보, 프로세스, 마운트 지점, 네트워크 통계를 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>이 프로그램은 GNU 일반 공중 사용 허가서(GNU GPL) 버전 3 또는 그 이후 버전(GPL-3.0-or-later)을 따르는 자유 소프트웨어입니다. 어떠한 보증도 하지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt 정보</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 정보</translation>
    </message>
</context>
</TS>
