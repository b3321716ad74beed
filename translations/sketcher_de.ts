<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh_CN">
    <context>
        <name>Host</name>
        <message>
            <source>长度</source>
            <translation>Länge</translation>
        </message>
        <message>
            <source>角度</source>
            <translation>Winkel</translation>
        </message>
        <message>
            <source>半径</source>
            <translation>Radius</translation>
        </message>
        <message>
            <source>圆心角</source>
            <translation>Zentriwinkel</translation>
        </message>
        <message>
            <source>宽度</source>
            <translation>Breite</translation>
        </message>
        <message>
            <source>高度</source>
            <translation>Höhe</translation>
        </message>
        <message>
            <source>整数</source>
            <translation>Ganze Zahl</translation>
        </message>
        <message>
            <source>数</source>
            <translation>Zahl</translation>
        </message>
        <message>
            <source>请输入一个%1</source>
            <translation>%1 eingeben</translation>
        </message>
        <message>
            <source>请输入 %1 到 %2 之间的%3</source>
            <translation>%3 von %1 bis %2 eingeben</translation>
        </message>
        <message>
            <source>不小于 %1</source>
            <translation>nicht kleiner als %1</translation>
        </message>
        <message>
            <source>大于 %1</source>
            <translation>größer als %1</translation>
        </message>
        <message>
            <source>不大于 %1</source>
            <translation>nicht größer als %1</translation>
        </message>
        <message>
            <source>小于 %1</source>
            <translation>kleiner als %1</translation>
        </message>
        <message>
            <source>请输入%1 且%2 的%3</source>
            <translation>%3 %1 und %2 eingeben</translation>
        </message>
        <message>
            <source>请输入%1 的%2</source>
            <translation>%2 %1 eingeben</translation>
        </message>
    </context>
    <context>
        <name>HostUi</name>
        <message>
            <source>对话框打开时发生的警告，见标准错误输出</source>
            <translation>Warnungen bei geöffnetem Dialog: siehe Standardfehlerausgabe</translation>
        </message>
        <message>
            <source>对话框打开时发生的警告，见日志：%1</source>
            <translation>Warnungen bei geöffnetem Dialog: siehe Protokoll %1</translation>
        </message>
        <message>
            <source>提示</source>
            <translation>Hinweis</translation>
        </message>
        <message>
            <source>光标位置</source>
            <translation>Cursorposition</translation>
        </message>
        <message>
            <source>；</source>
            <translation>; </translation>
        </message>
        <message>
            <source>未显示的警告：%1</source>
            <translation>Nicht angezeigte Warnungen: %1</translation>
        </message>
        <message>
            <source>这不是一个数，也不是算式</source>
            <translation>Weder Zahl noch Formel</translation>
        </message>
        <message>
            <source>含有不认识的名称或单位</source>
            <translation>Enthält einen unbekannten Namen oder eine unbekannte Einheit</translation>
        </message>
        <message>
            <source>逗号有歧义，小数点请用“.”</source>
            <translation>Das Komma ist mehrdeutig: „.“ als Dezimalpunkt verwenden</translation>
        </message>
        <message>
            <source>有歧义，请加括号</source>
            <translation>Mehrdeutig: Klammern setzen</translation>
        </message>
        <message>
            <source>单位不一致，请给每一项写上单位</source>
            <translation>Uneinheitlich: bei jedem Glied die Einheit angeben</translation>
        </message>
        <message>
            <source>单位与此处的量不符</source>
            <translation>Die Einheit passt nicht zu dieser Größe</translation>
        </message>
        <message>
            <source>角度请以度为单位，如 30d 或 sin(30d)</source>
            <translation>Winkel in Grad angeben, z. B. 30d oder sin(30d)</translation>
        </message>
        <message>
            <source>算不出确定的值</source>
            <translation>Ergibt keinen bestimmten Wert</translation>
        </message>
        <message>
            <source>还没有上一点，不能用“@”</source>
            <translation>Es gibt noch keinen letzten Punkt, auf den sich „@“ beziehen könnte</translation>
        </message>
        <message>
            <source>请输入 %1 到 %2 之间的数</source>
            <translation>Zahl von %1 bis %2 eingeben</translation>
        </message>
        <message>
            <source>空格已经确定了数值，其后的“%1”没有采用；撤销（Ctrl+Z）一次即可取回</source>
            <translation>Die Leertaste hat den Wert übernommen, „%1“ danach zählt nicht. Einmal Rückgängig (Ctrl+Z) nimmt ihn zurück</translation>
        </message>
        <message>
            <source>空格</source>
            <translation>Leertaste</translation>
        </message>
        <message>
            <source>确定</source>
            <translation>Übernehmen</translation>
        </message>
        <message>
            <source>取消</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>%1 坐标</source>
            <translation>%1-Koordinate</translation>
        </message>
        <message>
            <source>这个点在这里不起作用，请换一个</source>
            <translation>Dieser Punkt bewirkt hier nichts; bitte einen anderen eingeben</translation>
        </message>
        <message>
            <source>选中</source>
            <translation>Ein</translation>
        </message>
        <message numerus="yes">
            <source>%n 项</source>
            <translation>
                <numerusform>%n Eintrag</numerusform>
                <numerusform>%n Einträge</numerusform>
            </translation>
        </message>
        <message>
            <source>按钮</source>
            <translation>Schaltfläche</translation>
        </message>
        <message>
            <source>标签</source>
            <translation>Beschriftung</translation>
        </message>
        <message>
            <source>输入框</source>
            <translation>Textfeld</translation>
        </message>
        <message>
            <source>下拉框</source>
            <translation>Auswahlliste</translation>
        </message>
        <message>
            <source>进度条</source>
            <translation>Fortschritt</translation>
        </message>
        <message>
            <source>复选组</source>
            <translation>Kontrollkästchen</translation>
        </message>
        <message>
            <source>单选组</source>
            <translation>Optionsfelder</translation>
        </message>
        <message>
            <source>菜单</source>
            <translation>Menü</translation>
        </message>
        <message>
            <source>其他</source>
            <translation>Andere</translation>
        </message>
        <message>
            <source>添加</source>
            <translation>Hinzugefügt</translation>
        </message>
        <message>
            <source>插入</source>
            <translation>Eingefügt</translation>
        </message>
        <message>
            <source>删除</source>
            <translation>Entfernt</translation>
        </message>
        <message>
            <source>清空</source>
            <translation>Geleert</translation>
        </message>
        <message>
            <source>属性</source>
            <translation>Eigenschaft</translation>
        </message>
        <message>
            <source>无</source>
            <translation>Keine</translation>
        </message>
        <message>
            <source>等待键入</source>
            <translation>Wartet auf Eingabe</translation>
        </message>
        <message>
            <source>原文</source>
            <translation>Rohtext</translation>
        </message>
        <message>
            <source>已锁定 %1</source>
            <translation>%1 gesperrt</translation>
        </message>
        <message>
            <source>，</source>
            <translation>, </translation>
        </message>
        <message>
            <source>定义</source>
            <translation>Definition</translation>
        </message>
        <message>
            <source>种类</source>
            <translation>Art</translation>
        </message>
        <message>
            <source>值</source>
            <translation>Wert</translation>
        </message>
        <message>
            <source>可见</source>
            <translation>Sichtbar</translation>
        </message>
        <message>
            <source>可用</source>
            <translation>Aktiv</translation>
        </message>
        <message>
            <source>用户</source>
            <translation>Benutzer</translation>
        </message>
        <message>
            <source>程序</source>
            <translation>Programm</translation>
        </message>
        <message>
            <source>%1（%2）</source>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>动作：%1
尺寸输入：%2</source>
            <translation>Aktion: %1
Maßeingabe: %2</translation>
        </message>
        <message>
            <source>是</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>否</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>浮动(&amp;F)</source>
            <translation>Lös&amp;en</translation>
        </message>
        <message>
            <source>关闭(&amp;C)</source>
            <translation>S&amp;chließen</translation>
        </message>
        <message>
            <source>移到左侧(&amp;L)</source>
            <translation>Nach &amp;links</translation>
        </message>
        <message>
            <source>移到右侧(&amp;R)</source>
            <translation>Nach &amp;rechts</translation>
        </message>
        <message>
            <source>移到上方(&amp;T)</source>
            <translation>Nach &amp;oben</translation>
        </message>
        <message>
            <source>移到下方(&amp;B)</source>
            <translation>Nach &amp;unten</translation>
        </message>
        <message>
            <source>加宽(&amp;W)</source>
            <translation>&amp;Breiter</translation>
        </message>
        <message>
            <source>缩窄(&amp;N)</source>
            <translation>&amp;Schmaler</translation>
        </message>
        <message>
            <source>加高(&amp;A)</source>
            <translation>&amp;Höher</translation>
        </message>
        <message>
            <source>减低(&amp;S)</source>
            <translation>&amp;Niedriger</translation>
        </message>
    </context>
    <context>
        <name>Sketcher</name>
        <message>
            <source>剪贴板中的图元来自更新的版本，未粘贴</source>
            <translation>Nicht eingefügt: Die Objekte der Zwischenablage stammen aus einer neueren Version</translation>
        </message>
        <message>
            <source>剪贴板中的图元已损坏，未粘贴</source>
            <translation>Nicht eingefügt: Die Objekte der Zwischenablage sind beschädigt</translation>
        </message>
        <message>
            <source>粘贴内容</source>
            <translation>Inhalt einfügen</translation>
        </message>
        <message>
            <source>按距离再制</source>
            <translation>Mit Abstand duplizieren</translation>
        </message>
        <message>
            <source>剪切</source>
            <translation>Ausschneiden</translation>
        </message>
        <message>
            <source>将所选图元移到剪贴板</source>
            <translation>Ausgewählte Objekte in die Zwischenablage verschieben</translation>
        </message>
        <message>
            <source>复制</source>
            <translation>Kopieren</translation>
        </message>
        <message>
            <source>将所选图元复制到剪贴板</source>
            <translation>Ausgewählte Objekte in die Zwischenablage kopieren</translation>
        </message>
        <message>
            <source>粘贴</source>
            <translation>Einfügen</translation>
        </message>
        <message>
            <source>粘贴剪贴板中的图元</source>
            <translation>Objekte aus der Zwischenablage einfügen</translation>
        </message>
        <message>
            <source>再制</source>
            <translation>Duplizieren</translation>
        </message>
        <message>
            <source>在旁边再画一份所选图元</source>
            <translation>Ausgewählte Objekte daneben noch einmal zeichnen</translation>
        </message>
        <message>
            <source>剪贴板</source>
            <translation>Zwischenablage</translation>
        </message>
        <message>
            <source>剪贴板中没有图元</source>
            <translation>Keine Objekte in der Zwischenablage</translation>
        </message>
        <message>
            <source>剪贴板中的图元太多，未粘贴</source>
            <translation>Nicht eingefügt: zu viele Objekte in der Zwischenablage</translation>
        </message>
        <message>
            <source>剪贴板中的图元无法存于日志旁，未粘贴</source>
            <translation>Nicht eingefügt: Die Objekte lassen sich nicht neben dem Journal ablegen</translation>
        </message>
        <message>
            <source>新建</source>
            <translation>Neu</translation>
        </message>
        <message>
            <source>新建空白图纸</source>
            <translation>Neue leere Zeichnung</translation>
        </message>
        <message>
            <source>打开</source>
            <translation>Öffnen</translation>
        </message>
        <message>
            <source>打开图纸文件</source>
            <translation>Zeichnungsdatei öffnen</translation>
        </message>
        <message>
            <source>最近</source>
            <translation>Zuletzt</translation>
        </message>
        <message>
            <source>打开最近用过的图纸文件</source>
            <translation>Zuletzt verwendete Zeichnungsdatei öffnen</translation>
        </message>
        <message>
            <source>保存</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>保存图纸</source>
            <translation>Zeichnung speichern</translation>
        </message>
        <message>
            <source>另存为</source>
            <translation>Speichern unter</translation>
        </message>
        <message>
            <source>将图纸保存为另一个文件</source>
            <translation>Zeichnung als andere Datei speichern</translation>
        </message>
        <message>
            <source>关闭</source>
            <translation>Schließen</translation>
        </message>
        <message>
            <source>关闭图纸</source>
            <translation>Zeichnung schließen</translation>
        </message>
        <message>
            <source>文件</source>
            <translation>Datei</translation>
        </message>
        <message>
            <source>空白图纸</source>
            <translation>Leere Zeichnung</translation>
        </message>
        <message>
            <source>打开内容</source>
            <translation>Inhalt öffnen</translation>
        </message>
        <message>
            <source>保存内容</source>
            <translation>Inhalt speichern</translation>
        </message>
        <message>
            <source>图纸 (*.vsk)</source>
            <translation>Zeichnungen (*.vsk)</translation>
        </message>
        <message>
            <source>所有文件 (*)</source>
            <translation>Alle Dateien (*)</translation>
        </message>
        <message>
            <source>取消</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>要保存对“%1”的更改吗？</source>
            <translation>Änderungen an „%1“ speichern?</translation>
        </message>
        <message>
            <source>如果不保存，更改将丢失。</source>
            <translation>Sonst gehen die Änderungen verloren.</translation>
        </message>
        <message>
            <source>保存(&amp;S)</source>
            <translation>&amp;Speichern</translation>
        </message>
        <message>
            <source>不保存(&amp;N)</source>
            <translation>&amp;Nicht speichern</translation>
        </message>
        <message>
            <source>“%1”打开之后已被其他程序修改。</source>
            <translation>„%1“ wurde seit dem Öffnen von einem anderen Programm geändert.</translation>
        </message>
        <message>
            <source>覆盖会丢失那些修改；也可以取消，再另存为其他文件。</source>
            <translation>Beim Überschreiben gehen diese Änderungen verloren; alternativ abbrechen und als andere Datei speichern.</translation>
        </message>
        <message>
            <source>覆盖</source>
            <translation>Überschreiben</translation>
        </message>
        <message>
            <source>“%1”已在另一个程序中打开。</source>
            <translation>„%1“ ist in einem anderen Programm geöffnet.</translation>
        </message>
        <message>
            <source>打开它的程序：%1</source>
            <translation>Geöffnet von: %1</translation>
        </message>
        <message>
            <source>以只读方式打开</source>
            <translation>Schreibgeschützt öffnen</translation>
        </message>
        <message>
            <source>打开图纸</source>
            <translation>Zeichnung öffnen</translation>
        </message>
        <message>
            <source>图纸另存为</source>
            <translation>Zeichnung speichern unter</translation>
        </message>
        <message>
            <source>“%1”已经存在。</source>
            <translation>„%1“ ist schon vorhanden.</translation>
        </message>
        <message>
            <source>替换会丢失它现在的内容。</source>
            <translation>Beim Ersetzen geht der jetzige Inhalt verloren.</translation>
        </message>
        <message>
            <source>替换</source>
            <translation>Ersetzen</translation>
        </message>
        <message>
            <source>确定</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>%1（%2，进程 %3）</source>
            <translation>%1 (%2, Prozess %3)</translation>
        </message>
        <message>
            <source>该文件由更新版本的程序保存，请用新版本打开。</source>
            <translation>Die Datei wurde mit einer neueren Programmversion gespeichert und lässt sich nur mit dieser öffnen.</translation>
        </message>
        <message>
            <source>文件第 %1 行有错误。文件保持原样。</source>
            <translation>Fehler in Zeile %1 der Datei. Die Datei bleibt unverändert.</translation>
        </message>
        <message>
            <source>文件夹不存在。</source>
            <translation>Der Ordner ist nicht vorhanden.</translation>
        </message>
        <message>
            <source>这不是普通文件。</source>
            <translation>Keine gewöhnliche Datei.</translation>
        </message>
        <message>
            <source>没有写入权限。</source>
            <translation>Keine Schreibberechtigung.</translation>
        </message>
        <message>
            <source>磁盘空间不足。</source>
            <translation>Zu wenig Speicherplatz.</translation>
        </message>
        <message>
            <source>写入时出错，原文件保持不变。</source>
            <translation>Fehler beim Schreiben; die Datei ist unverändert.</translation>
        </message>
        <message>
            <source>日志旁无法保留该文件的副本，没有它就不能恢复所做的操作。</source>
            <translation>Neben dem Journal lässt sich keine Kopie der Datei ablegen; ohne sie wäre die Arbeit nicht wiederherzustellen.</translation>
        </message>
        <message>
            <source>内存不足。</source>
            <translation>Zu wenig Arbeitsspeicher.</translation>
        </message>
        <message>
            <source>图纸</source>
            <translation>Zeichnung</translation>
        </message>
        <message>
            <source>没有最近的文件</source>
            <translation>Keine zuletzt verwendeten Dateien</translation>
        </message>
        <message>
            <source>无法打开“%1”</source>
            <translation>„%1“ lässt sich nicht öffnen</translation>
        </message>
        <message>
            <source>无法保存“%1”</source>
            <translation>„%1“ lässt sich nicht speichern</translation>
        </message>
        <message>
            <source>该文件已在另一个程序中打开：%1</source>
            <translation>Die Datei ist in einem anderen Programm geöffnet: %1</translation>
        </message>
        <message>
            <source>已保存 %1</source>
            <translation>%1 gespeichert</translation>
        </message>
        <message>
            <source>：</source>
            <translation>: </translation>
        </message>
        <message>
            <source>文件未加锁</source>
            <translation>Datei nicht gesperrt</translation>
        </message>
        <message>
            <source>文件夹中无法建立锁文件，其他程序不会知道该文件已打开</source>
            <translation>Im Ordner lässt sich keine Sperrdatei anlegen: Andere Programme erfahren nicht, dass die Datei geöffnet ist</translation>
        </message>
        <message>
            <source>只读</source>
            <translation>Schreibgeschützt</translation>
        </message>
        <message>
            <source>该文件已在另一个程序中打开，更改只能另存为其他文件</source>
            <translation>Die Datei ist in einem anderen Programm geöffnet; Änderungen lassen sich nur als andere Datei speichern</translation>
        </message>
        <message>
            <source>绘制精确图形；每次绘图都可以重放。</source>
            <translation>Zeichnet genau; alles Gezeichnete lässt sich wiedergeben.</translation>
        </message>
        <message>
            <source>许可证：%1</source>
            <translation>Lizenz: %1</translation>
        </message>
        <message>
            <source>使用的库：</source>
            <translation>Verwendete Bibliotheken:</translation>
        </message>
        <message>
            <source>Qt 版本：%1</source>
            <translation>Qt-Version: %1</translation>
        </message>
        <message>
            <source>DXF 文件由单独的程序 vesk-dxf 读写，它使用 dxflib，许可证：%1</source>
            <translation>DXF-Dateien liest und schreibt ein eigenes Programm, vesk-dxf, mit dxflib; Lizenz: %1</translation>
        </message>
        <message>
            <source>帮助</source>
            <translation>Hilfe</translation>
        </message>
        <message>
            <source>按键，和可以键入的数值</source>
            <translation>Tasten und mögliche Eingaben</translation>
        </message>
        <message>
            <source>关于</source>
            <translation>Info</translation>
        </message>
        <message>
            <source>版本和许可证</source>
            <translation>Version und Lizenzen</translation>
        </message>
        <message>
            <source>关于 Sketcher</source>
            <translation>Über Sketcher</translation>
        </message>
        <message>
            <source>左键</source>
            <translation>Linke Taste</translation>
        </message>
        <message>
            <source>画点；没有工具时选取图元，按 Ctrl 增减</source>
            <translation>Setzt Punkte; ohne Werkzeug wählt sie Objekte aus, mit Ctrl einzeln dazu oder ab</translation>
        </message>
        <message>
            <source>左键拖动</source>
            <translation>Linke Taste ziehen</translation>
        </message>
        <message>
            <source>向右框选全部在框内的图元，向左也选碰到框的</source>
            <translation>Nach rechts: wählt, was ganz im Rahmen liegt; nach links: auch, was er berührt</translation>
        </message>
        <message>
            <source>滚轮</source>
            <translation>Mausrad</translation>
        </message>
        <message>
            <source>以光标为中心缩放</source>
            <translation>Zoomt um den Cursor</translation>
        </message>
        <message>
            <source>中键拖动</source>
            <translation>Mittlere Taste ziehen</translation>
        </message>
        <message>
            <source>平移</source>
            <translation>Verschiebt den Ausschnitt</translation>
        </message>
        <message>
            <source>方向键</source>
            <translation>Pfeiltasten</translation>
        </message>
        <message>
            <source>光标移到下一栅格点，按 Shift 移十分之一；按 Ctrl 移动画面</source>
            <translation>Cursor zum nächsten Rasterpunkt, mit Shift um ein Zehntel; mit Ctrl das Bild verschieben</translation>
        </message>
        <message>
            <source>方向键之后的空格</source>
            <translation>Leertaste nach einer Pfeiltaste</translation>
        </message>
        <message>
            <source>在光标处单击，直到按 Esc 或移动鼠标</source>
            <translation>Klickt am Cursor, bis Esc gedrückt oder die Maus bewegt wird</translation>
        </message>
        <message>
            <source>Shift+空格</source>
            <translation>Shift+Leertaste</translation>
        </message>
        <message>
            <source>开始框选，再按空格结束</source>
            <translation>Beginnt dort einen Auswahlrahmen; die nächste Leertaste beendet ihn</translation>
        </message>
        <message>
            <source>放大、缩小</source>
            <translation>Vergrößern, verkleinern</translation>
        </message>
        <message>
            <source>转到下一区域或上一区域：图纸、面板、功能区</source>
            <translation>Zum nächsten oder vorigen Bereich: Zeichnung, Paletten, Menüband</translation>
        </message>
        <message>
            <source>打开所在面板的菜单：浮动、移动、改变大小、关闭</source>
            <translation>Öffnet das Menü der Palette, die die Tastatur hat: lösen, verschieben, Größe ändern, schließen</translation>
        </message>
        <message>
            <source>数字</source>
            <translation>Ziffern</translation>
        </message>
        <message>
            <source>工具运行时键入长度、半径或角度</source>
            <translation>Länge, Radius oder Winkel eingeben, während ein Werkzeug läuft</translation>
        </message>
        <message>
            <source>锁定此值，转到另一个值</source>
            <translation>Sperrt den Wert und geht zum anderen</translation>
        </message>
        <message>
            <source>确定数值</source>
            <translation>Übernimmt den Wert</translation>
        </message>
        <message>
            <source>点的坐标</source>
            <translation>Koordinaten eines Punkts</translation>
        </message>
        <message>
            <source>工具要点时键入数：Tab 转到另一坐标，Enter 确定；数前加 @ 从上一点算起</source>
            <translation>Zahl eingeben, wo ein Werkzeug einen Punkt verlangt: Tab wechselt zur anderen Koordinate, Enter übernimmt; ein @ davor zählt ab dem letzten Punkt</translation>
        </message>
        <message>
            <source>空格</source>
            <translation>Leertaste</translation>
        </message>
        <message>
            <source>键入的是数时确定（可在设置中改为键入空格）</source>
            <translation>Übernimmt eine Zahl (in den Einstellungen auch als Leerzeichen wählbar)</translation>
        </message>
        <message>
            <source>依次取消键入、解除锁定、结束工具、取消选取</source>
            <translation>Bricht der Reihe nach die Eingabe ab, entsperrt, beendet das Werkzeug, hebt die Auswahl auf</translation>
        </message>
        <message>
            <source>Alt 或 F10</source>
            <translation>Alt oder F10</translation>
        </message>
        <message>
            <source>显示功能区的按键</source>
            <translation>Zeigt die Tasten des Menübands</translation>
        </message>
        <message>
            <source>鼠标</source>
            <translation>Maus</translation>
        </message>
        <message>
            <source>键入数值</source>
            <translation>Werte eingeben</translation>
        </message>
        <message>
            <source>不用鼠标</source>
            <translation>Ohne Maus</translation>
        </message>
        <message>
            <source>可以键入</source>
            <translation>Mögliche Eingaben</translation>
        </message>
        <message>
            <source>不会猜测，因此不接受</source>
            <translation>Abgelehnt, denn geraten wird nicht</translation>
        </message>
        <message>
            <source>命令</source>
            <translation>Befehle</translation>
        </message>
        <message>
            <source>数，用所示的单位；角度为度</source>
            <translation>Zahl in der angezeigten Einheit; Winkel in Grad</translation>
        </message>
        <message>
            <source>小数逗号，即 3.5</source>
            <translation>Dezimalkomma: 3.5</translation>
        </message>
        <message>
            <source>算式：+ - * / ^ 和括号</source>
            <translation>Formel: + - * / ^ und Klammern</translation>
        </message>
        <message>
            <source>带单位：mm cm dm m km in " ft '</source>
            <translation>Mit Einheit: mm cm dm m km in " ft '</translation>
        </message>
        <message>
            <source>英尺和英寸</source>
            <translation>Fuß und Zoll</translation>
        </message>
        <message>
            <source>分数，单位前可有空格</source>
            <translation>Bruch; vor der Einheit darf ein Leerzeichen stehen</translation>
        </message>
        <message>
            <source>带单位的算式</source>
            <translation>Formel mit Einheiten</translation>
        </message>
        <message>
            <source>函数 sqrt 和 abs</source>
            <translation>Funktionen sqrt und abs</translation>
        </message>
        <message>
            <source>sin cos tan，角度后写 d</source>
            <translation>sin cos tan, mit d hinter Winkeln</translation>
        </message>
        <message>
            <source>圆周率</source>
            <translation>Kreiszahl Pi</translation>
        </message>
        <message>
            <source>角度：d、deg 或 °</source>
            <translation>Winkel: d, deg oder °</translation>
        </message>
        <message>
            <source>asin acos atan 得出角度</source>
            <translation>asin acos atan ergeben einen Winkel</translation>
        </message>
        <message>
            <source>一千还是一？</source>
            <translation>Tausend oder eins?</translation>
        </message>
        <message>
            <source>度还是弧度？写 sin(30d)</source>
            <translation>Grad oder Bogenmaß? Besser sin(30d)</translation>
        </message>
        <message>
            <source>5 的单位是什么？</source>
            <translation>Welche Einheit hat 5?</translation>
        </message>
        <message>
            <source>6 的单位是什么？</source>
            <translation>Welche Einheit hat 6?</translation>
        </message>
        <message>
            <source>请用括号</source>
            <translation>Klammern setzen</translation>
        </message>
        <message>
            <source>缺少运算符</source>
            <translation>Der Operator fehlt</translation>
        </message>
        <message>
            <source>单位用小写</source>
            <translation>Einheiten stehen in Kleinbuchstaben</translation>
        </message>
        <message>
            <source>长度不能用度</source>
            <translation>Eine Länge hat keine Grad</translation>
        </message>
        <message>
            <source>日志未保存</source>
            <translation>Journal nicht gespeichert</translation>
        </message>
        <message>
            <source>日志文件无法写入，所做的操作没有保存</source>
            <translation>Das Journal lässt sich nicht schreiben: Die Arbeit wird nicht gesichert</translation>
        </message>
        <message>
            <source>日志文件又可写入，缺少的记录已补上</source>
            <translation>Das Journal lässt sich wieder schreiben; fehlende Einträge wurden ergänzt</translation>
        </message>
        <message>
            <source>日志文件无法写入，从现在起所做的操作没有保存</source>
            <translation>Das Journal lässt sich nicht schreiben: Ab jetzt wird die Arbeit nicht gesichert</translation>
        </message>
        <message>
            <source>文件不存在。</source>
            <translation>Die Datei ist nicht vorhanden.</translation>
        </message>
        <message>
            <source>文件太大。</source>
            <translation>Die Datei ist zu groß.</translation>
        </message>
        <message>
            <source>无法读取文件。</source>
            <translation>Die Datei lässt sich nicht lesen.</translation>
        </message>
        <message>
            <source>实线</source>
            <translation>Durchgezogen</translation>
        </message>
        <message>
            <source>虚线</source>
            <translation>Gestrichelt</translation>
        </message>
        <message>
            <source>点线</source>
            <translation>Gepunktet</translation>
        </message>
        <message>
            <source>点画线</source>
            <translation>Strichpunkt</translation>
        </message>
        <message>
            <source>默认</source>
            <translation>Vorgabe</translation>
        </message>
        <message>
            <source>红色</source>
            <translation>Rot</translation>
        </message>
        <message>
            <source>橙色</source>
            <translation>Orange</translation>
        </message>
        <message>
            <source>绿色</source>
            <translation>Grün</translation>
        </message>
        <message>
            <source>蓝色</source>
            <translation>Blau</translation>
        </message>
        <message>
            <source>洋红</source>
            <translation>Magenta</translation>
        </message>
        <message>
            <source>灰色</source>
            <translation>Grau</translation>
        </message>
        <message>
            <source>直线</source>
            <translation>Linie</translation>
        </message>
        <message>
            <source>圆</source>
            <translation>Kreis</translation>
        </message>
        <message>
            <source>圆弧</source>
            <translation>Bogen</translation>
        </message>
        <message>
            <source>矩形</source>
            <translation>Rechteck</translation>
        </message>
        <message>
            <source>长度</source>
            <translation>Länge</translation>
        </message>
        <message>
            <source>角度</source>
            <translation>Winkel</translation>
        </message>
        <message>
            <source>半径</source>
            <translation>Radius</translation>
        </message>
        <message>
            <source>起点 X</source>
            <translation>Start X</translation>
        </message>
        <message>
            <source>起点 Y</source>
            <translation>Start Y</translation>
        </message>
        <message>
            <source>端点 X</source>
            <translation>Ende X</translation>
        </message>
        <message>
            <source>端点 Y</source>
            <translation>Ende Y</translation>
        </message>
        <message>
            <source>圆心 X</source>
            <translation>Mittelpunkt X</translation>
        </message>
        <message>
            <source>圆心 Y</source>
            <translation>Mittelpunkt Y</translation>
        </message>
        <message>
            <source>角点 X</source>
            <translation>Ecke X</translation>
        </message>
        <message>
            <source>角点 Y</source>
            <translation>Ecke Y</translation>
        </message>
        <message>
            <source>宽度</source>
            <translation>Breite</translation>
        </message>
        <message>
            <source>高度</source>
            <translation>Höhe</translation>
        </message>
        <message>
            <source>未命名</source>
            <translation>Unbenannt</translation>
        </message>
        <message>
            <source>线条特性</source>
            <translation>Linieneigenschaften</translation>
        </message>
        <message>
            <source>新建图层</source>
            <translation>Neuer Layer</translation>
        </message>
        <message>
            <source>修改图层</source>
            <translation>Layer ändern</translation>
        </message>
        <message>
            <source>删除图层</source>
            <translation>Layer entfernen</translation>
        </message>
        <message>
            <source>图名</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>修改</source>
            <translation>Ändern</translation>
        </message>
        <message>
            <source>删除</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>SVG 矢量图</source>
            <translation>SVG-Grafik</translation>
        </message>
        <message>
            <source>PDF 文档</source>
            <translation>PDF-Dokument</translation>
        </message>
        <message>
            <source>PNG 图片</source>
            <translation>PNG-Bild</translation>
        </message>
        <message>
            <source>DXF 图形</source>
            <translation>DXF-Zeichnung</translation>
        </message>
        <message>
            <source>不支持</source>
            <translation>nicht unterstützt</translation>
        </message>
        <message>
            <source>在图纸空间</source>
            <translation>im Papierbereich</translation>
        </message>
        <message>
            <source>不在绘图平面内</source>
            <translation>nicht in der Zeichenebene</translation>
        </message>
        <message>
            <source>过小或过大</source>
            <translation>zu klein oder zu groß</translation>
        </message>
        <message>
            <source>网格或样条</source>
            <translation>Netz oder Spline</translation>
        </message>
        <message>
            <source>颜色</source>
            <translation>Farbe</translation>
        </message>
        <message>
            <source>图层颜色</source>
            <translation>Layerfarbe</translation>
        </message>
        <message>
            <source>线型</source>
            <translation>Linientyp</translation>
        </message>
        <message>
            <source>线宽</source>
            <translation>Stärke</translation>
        </message>
        <message>
            <source>高度（已投影到绘图平面）</source>
            <translation>Höhe (auf die Zeichenebene projiziert)</translation>
        </message>
        <message numerus="yes">
            <source>未导入 %n 个 %1：%2</source>
            <translation>
                <numerusform>%n %1 nicht importiert: %2</numerusform>
                <numerusform>%n %1 nicht importiert: %2</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n 处%1取最接近的值</source>
            <translation>
                <numerusform>%1: an %n Stelle nächstliegender Wert</numerusform>
                <numerusform>%1: an %n Stellen nächstliegender Wert</numerusform>
            </translation>
        </message>
        <message>
            <source>文件不完整，只读到中断处</source>
            <translation>Die Datei ist unvollständig; gelesen wurde bis zum Abbruch</translation>
        </message>
        <message>
            <source>导出图纸</source>
            <translation>Zeichnung exportieren</translation>
        </message>
        <message>
            <source>打印到文件</source>
            <translation>In Datei drucken</translation>
        </message>
        <message>
            <source>PDF 文档 (*.pdf)</source>
            <translation>PDF-Dokumente (*.pdf)</translation>
        </message>
        <message>
            <source>导入</source>
            <translation>Importieren</translation>
        </message>
        <message>
            <source>导入：将 DXF 文件的图元加入图纸</source>
            <translation>Importieren: Objekte einer DXF-Datei zur Zeichnung hinzufügen</translation>
        </message>
        <message>
            <source>输出</source>
            <translation>Ausgabe</translation>
        </message>
        <message>
            <source>导入图元</source>
            <translation>Objekte importieren</translation>
        </message>
        <message>
            <source>未导入 %1：%2</source>
            <translation>%1 nicht importiert: %2</translation>
        </message>
        <message>
            <source>未导入 %1</source>
            <translation>%1 nicht importiert</translation>
        </message>
        <message>
            <source>未导入：日志旁无法保存导入的内容</source>
            <translation>Nicht importiert: Der Inhalt lässt sich nicht neben dem Journal ablegen</translation>
        </message>
        <message>
            <source>%1：%2</source>
            <translation>%1: %2</translation>
        </message>
        <message numerus="yes">
            <source>已导入 %n 个图元</source>
            <translation>
                <numerusform>%n Objekt importiert</numerusform>
                <numerusform>%n Objekte importiert</numerusform>
            </translation>
        </message>
        <message>
            <source>DXF 图形 (*.dxf *.DXF)</source>
            <translation>DXF-Zeichnungen (*.dxf *.DXF)</translation>
        </message>
        <message>
            <source>%1 没有注明单位。长度单位是：</source>
            <translation>%1 nennt keine Einheit. Die Längen sind in:</translation>
        </message>
        <message>
            <source>%1：%2，%3。</source>
            <translation>%1: %2, %3.</translation>
        </message>
        <message numerus="yes">
            <source>另有 %n 项说明</source>
            <translation>
                <numerusform>%n Hinweis</numerusform>
                <numerusform>%n Hinweise</numerusform>
            </translation>
        </message>
        <message>
            <source>毫米</source>
            <translation>Millimeter</translation>
        </message>
        <message>
            <source>厘米</source>
            <translation>Zentimeter</translation>
        </message>
        <message>
            <source>米</source>
            <translation>Meter</translation>
        </message>
        <message>
            <source>英寸</source>
            <translation>Zoll</translation>
        </message>
        <message>
            <source>英尺</source>
            <translation>Fuß</translation>
        </message>
        <message>
            <source>导出</source>
            <translation>Exportieren</translation>
        </message>
        <message>
            <source>导出：将图纸写成 SVG、PDF、PNG 或 DXF 文件</source>
            <translation>Exportieren: Zeichnung als SVG-, PDF-, PNG- oder DXF-Datei schreiben</translation>
        </message>
        <message>
            <source>打印</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>打印：选择比例、纸张和打印机，并预览</source>
            <translation>Drucken: Maßstab, Papier und Drucker wählen, mit Vorschau</translation>
        </message>
        <message>
            <source>打印图纸</source>
            <translation>Zeichnung drucken</translation>
        </message>
        <message>
            <source>无法导出 %1：不支持此格式</source>
            <translation>%1 lässt sich nicht exportieren: Format nicht unterstützt</translation>
        </message>
        <message>
            <source>已导出 %1</source>
            <translation>%1 exportiert</translation>
        </message>
        <message>
            <source>未导出 %1</source>
            <translation>%1 nicht exportiert</translation>
        </message>
        <message>
            <source>已打印</source>
            <translation>Gedruckt</translation>
        </message>
        <message>
            <source>已打印到 %1</source>
            <translation>Gedruckt in %1</translation>
        </message>
        <message>
            <source>未打印</source>
            <translation>Nicht gedruckt</translation>
        </message>
        <message>
            <source>已取消</source>
            <translation>Abgebrochen</translation>
        </message>
        <message>
            <source>图纸中没有可见的图元</source>
            <translation>Die Zeichnung hat keine sichtbaren Objekte</translation>
        </message>
        <message>
            <source>图纸太大，此格式无法按 1:1 输出</source>
            <translation>Die Zeichnung ist für dieses Format bei 1:1 zu groß</translation>
        </message>
        <message>
            <source>内存不足</source>
            <translation>Zu wenig Arbeitsspeicher</translation>
        </message>
        <message>
            <source>无法读取文件</source>
            <translation>Die Datei lässt sich nicht lesen</translation>
        </message>
        <message>
            <source>无法写入文件</source>
            <translation>Die Datei lässt sich nicht schreiben</translation>
        </message>
        <message>
            <source>找不到 vesk-dxf 程序</source>
            <translation>Das Programm vesk-dxf fehlt</translation>
        </message>
        <message>
            <source>vesk-dxf 程序出错</source>
            <translation>Fehler im Programm vesk-dxf</translation>
        </message>
        <message>
            <source>图元过多或内存不足</source>
            <translation>Zu viele Objekte oder zu wenig Arbeitsspeicher</translation>
        </message>
        <message>
            <source>不是文本格式的 DXF 文件，或已损坏</source>
            <translation>Keine DXF-Textdatei oder beschädigt</translation>
        </message>
        <message>
            <source>文件没有单位</source>
            <translation>Die Datei nennt keine Einheit</translation>
        </message>
        <message>
            <source>图纸很大，预览只画出一部分；打印是完整的</source>
            <translation>Die Zeichnung ist groß: Die Vorschau zeigt nur einen Teil, gedruckt wird alles</translation>
        </message>
        <message>
            <source>纵向</source>
            <translation>Hochformat</translation>
        </message>
        <message>
            <source>横向</source>
            <translation>Querformat</translation>
        </message>
        <message>
            <source>布满</source>
            <translation>Einpassen</translation>
        </message>
        <message>
            <source>PDF 文件</source>
            <translation>PDF-Datei</translation>
        </message>
        <message>
            <source>打印机(&amp;P)</source>
            <translation>&amp;Drucker</translation>
        </message>
        <message>
            <source>纸张(&amp;S)</source>
            <translation>&amp;Papier</translation>
        </message>
        <message>
            <source>方向(&amp;O)</source>
            <translation>&amp;Ausrichtung</translation>
        </message>
        <message>
            <source>比例(&amp;C)</source>
            <translation>&amp;Maßstab</translation>
        </message>
        <message>
            <source>比例应写成 1:50 或 2:1</source>
            <translation>Maßstab als 1:50 oder 2:1 angeben</translation>
        </message>
        <message>
            <source>比例 %1</source>
            <translation>Maßstab %1</translation>
        </message>
        <message>
            <source>图形超出纸面，超出部分不会打印</source>
            <translation>Die Zeichnung ragt über das Papier; was außerhalb liegt, wird nicht gedruckt</translation>
        </message>
        <message>
            <source>编号</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>类型</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>尺寸</source>
            <translation>Maße</translation>
        </message>
        <message>
            <source>，</source>
            <translation>, </translation>
        </message>
        <message>
            <source>操作没有存入日志文件</source>
            <translation>Die Arbeit wird in keiner Journaldatei gesichert</translation>
        </message>
        <message>
            <source>复制记录</source>
            <translation>Einträge kopieren</translation>
        </message>
        <message>
            <source>新图元画在当前图层上；单击设为当前</source>
            <translation>Neue Objekte liegen auf dem aktuellen Layer; Klick macht diesen aktuell</translation>
        </message>
        <message>
            <source>名称</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>双击改名</source>
            <translation>Doppelklick zum Umbenennen</translation>
        </message>
        <message>
            <source>颜色为默认的图元所用的颜色；单击选择</source>
            <translation>Farbe der Objekte mit Farbe „Vorgabe“; Klick zum Wählen</translation>
        </message>
        <message>
            <source>可见</source>
            <translation>Ein</translation>
        </message>
        <message>
            <source>不可见的图层不显示，也不能选取和捕捉</source>
            <translation>Unsichtbare Layer werden nicht gezeigt, nicht ausgewählt und nicht gefangen</translation>
        </message>
        <message>
            <source>锁定</source>
            <translation>Gesp.</translation>
        </message>
        <message>
            <source>锁定的图层可以捕捉，但不能选取和修改</source>
            <translation>Gesperrte Layer lassen sich fangen, aber nicht auswählen oder ändern</translation>
        </message>
        <message>
            <source>图层名不能为空</source>
            <translation>Ein Layer braucht einen Namen</translation>
        </message>
        <message>
            <source>已有名为“%1”的图层</source>
            <translation>Den Layer „%1“ gibt es schon</translation>
        </message>
        <message>
            <source>图层 %1</source>
            <translation>Layer %1</translation>
        </message>
        <message>
            <source>删除</source>
            <comment>layer</comment>
            <translation>Entfernen</translation>
        </message>
        <message>
            <source>删除所选图层；基础图层和有图元的图层不能删除</source>
            <translation>Ausgewählten Layer entfernen; der erste und solche mit Objekten bleiben</translation>
        </message>
        <message>
            <source>设为当前</source>
            <translation>Aktuell setzen</translation>
        </message>
        <message>
            <source>新图元画在所选图层上</source>
            <translation>Neue Objekte auf den ausgewählten Layer zeichnen</translation>
        </message>
        <message>
            <source>图元</source>
            <translation>Objekte</translation>
        </message>
        <message>
            <source>图层</source>
            <translation>Layer</translation>
        </message>
        <message>
            <source>日志</source>
            <translation>Journal</translation>
        </message>
        <message>
            <source>检查器</source>
            <translation>Inspektor</translation>
        </message>
        <message>
            <source>特性</source>
            <translation>Eigenschaften</translation>
        </message>
        <message>
            <source>隐藏全部面板</source>
            <translation>Alle ausblenden</translation>
        </message>
        <message>
            <source>隐藏全部面板；再按一次恢复原样</source>
            <translation>Alle Paletten ausblenden; noch einmal stellt sie wieder her</translation>
        </message>
        <message>
            <source>面板</source>
            <translation>Paletten</translation>
        </message>
        <message>
            <source>恢复默认布局</source>
            <translation>Standardlayout</translation>
        </message>
        <message>
            <source>恢复面板的默认布局</source>
            <translation>Standardanordnung der Paletten wiederherstellen</translation>
        </message>
        <message>
            <source>显示全部面板</source>
            <translation>Alle Paletten anzeigen</translation>
        </message>
        <message>
            <source>显示或隐藏此面板</source>
            <translation>Diese Palette ein- oder ausblenden</translation>
        </message>
        <message>
            <source>未选图元</source>
            <translation>Nichts ausgewählt</translation>
        </message>
        <message numerus="yes">
            <source>已选 %n 个图元</source>
            <translation>
                <numerusform>%n Objekt ausgewählt</numerusform>
                <numerusform>%n Objekte ausgewählt</numerusform>
            </translation>
        </message>
        <message>
            <source>以此值无法绘制图元</source>
            <translation>Mit diesem Wert lässt sich das Objekt nicht zeichnen</translation>
        </message>
        <message>
            <source>命令 %1</source>
            <translation>Befehl %1</translation>
        </message>
        <message>
            <source>点 %1, %2</source>
            <translation>Punkt %1, %2</translation>
        </message>
        <message>
            <source>图元 #%1</source>
            <translation>Objekt #%1</translation>
        </message>
        <message>
            <source>取消选择</source>
            <translation>Auswahl aufheben</translation>
        </message>
        <message numerus="yes">
            <source>选择 %n 个图元</source>
            <translation>
                <numerusform>%n Objekt auswählen</numerusform>
                <numerusform>%n Objekte auswählen</numerusform>
            </translation>
        </message>
        <message>
            <source>选择 %1</source>
            <translation>Auswählen %1</translation>
        </message>
        <message>
            <source>%1 “%2” = %3</source>
            <translation>%1 „%2“ = %3</translation>
        </message>
        <message>
            <source>撤销 #%1</source>
            <translation>Rückgängig #%1</translation>
        </message>
        <message>
            <source>重做 #%1</source>
            <translation>Wiederholen #%1</translation>
        </message>
        <message>
            <source>图纸 %1</source>
            <translation>Zeichnung %1</translation>
        </message>
        <message>
            <source>程序结束</source>
            <translation>Programm beendet</translation>
        </message>
        <message>
            <source>日志 %1  %2</source>
            <translation>Journal %1  %2</translation>
        </message>
        <message>
            <source>未执行</source>
            <translation>Nicht ausgeführt</translation>
        </message>
        <message>
            <source>结束</source>
            <translation>Ende</translation>
        </message>
        <message>
            <source>恢复内容</source>
            <translation>Inhalt wiederherstellen</translation>
        </message>
        <message>
            <source>继续(&amp;R)</source>
            <translation>&amp;Fortsetzen</translation>
        </message>
        <message>
            <source>恢复这些操作并继续绘图</source>
            <translation>Diese Arbeit wiederherstellen und weiterzeichnen</translation>
        </message>
        <message>
            <source>查看(&amp;K)</source>
            <translation>&amp;Ansehen</translation>
        </message>
        <message>
            <source>在另一窗口中查看，不作改动</source>
            <translation>In einem anderen Fenster ansehen, ohne etwas zu ändern</translation>
        </message>
        <message>
            <source>忽略(&amp;I)</source>
            <translation>&amp;Ignorieren</translation>
        </message>
        <message>
            <source>不再提示；日志仍保留一段时间</source>
            <translation>Nicht mehr anbieten; das Journal bleibt noch eine Weile erhalten</translation>
        </message>
        <message>
            <source>以后(&amp;L)</source>
            <translation>S&amp;päter</translation>
        </message>
        <message>
            <source>下次启动时再提示</source>
            <translation>Beim nächsten Start wieder anbieten</translation>
        </message>
        <message numerus="yes">
            <source>%n 步</source>
            <translation>
                <numerusform>%n Schritt</numerusform>
                <numerusform>%n Schritte</numerusform>
            </translation>
        </message>
        <message>
            <source>上次未正常结束：%1</source>
            <translation>Beim letzten Mal nicht ordentlich beendet: %1</translation>
        </message>
        <message>
            <source>（日志有损坏，可恢复损坏之前的部分）</source>
            <translation> (das Journal ist beschädigt; bis dorthin lässt es sich wiederherstellen)</translation>
        </message>
        <message numerus="yes">
            <source>；另有 %n 个</source>
            <translation>
                <numerusform>; %n weiteres</numerusform>
                <numerusform>; %n weitere</numerusform>
            </translation>
        </message>
        <message>
            <source>上次的操作已在另一窗口中恢复</source>
            <translation>Die Arbeit wurde in einem anderen Fenster wiederhergestellt</translation>
        </message>
        <message>
            <source>比例</source>
            <translation>Maßstab</translation>
        </message>
        <message>
            <source>缩放</source>
            <translation>Zoom</translation>
        </message>
        <message>
            <source>缩放到全部图元；箭头打开更多缩放命令</source>
            <translation>Auf alle Objekte zoomen; der Pfeil öffnet weitere Zoombefehle</translation>
        </message>
        <message>
            <source>显示全部面板；箭头逐个显示或隐藏</source>
            <translation>Alle Paletten anzeigen; der Pfeil blendet sie einzeln ein oder aus</translation>
        </message>
        <message>
            <source>直线：单击或键入长度和角度，逐段绘制</source>
            <translation>Linie: Stück für Stück klicken oder Länge und Winkel eingeben</translation>
        </message>
        <message>
            <source>矩形：单击两个对角点，或键入宽度和高度</source>
            <translation>Rechteck: zwei gegenüberliegende Ecken klicken oder Breite und Höhe eingeben</translation>
        </message>
        <message>
            <source>圆：单击圆心和圆上一点，或键入半径</source>
            <translation>Kreis: Mittelpunkt und Kreispunkt klicken oder Radius eingeben</translation>
        </message>
        <message>
            <source>三点圆弧</source>
            <translation>3-Punkt-Bogen</translation>
        </message>
        <message>
            <source>三点圆弧：单击起点、端点和弧上一点，或键入半径</source>
            <translation>3-Punkt-Bogen: Start, Ende und Bogenpunkt klicken oder Radius eingeben</translation>
        </message>
        <message>
            <source>圆心圆弧</source>
            <translation>Mittelpunktbogen</translation>
        </message>
        <message>
            <source>圆心圆弧：单击圆心、起点和端点，或键入圆心角</source>
            <translation>Mittelpunktbogen: Mittelpunkt, Start und Ende klicken oder Zentriwinkel eingeben</translation>
        </message>
        <message>
            <source>绘图</source>
            <translation>Zeichnen</translation>
        </message>
        <message>
            <source>设置特性</source>
            <translation>Eigenschaft setzen</translation>
        </message>
        <message>
            <source>删除：单击要删除的图元</source>
            <translation>Löschen: zu löschende Objekte anklicken</translation>
        </message>
        <message>
            <source>编辑</source>
            <translation>Bearbeiten</translation>
        </message>
        <message>
            <source>旋转</source>
            <translation>Drehen</translation>
        </message>
        <message>
            <source>旋转：将所选图元绕一点转到另一方向，或键入角度</source>
            <translation>Drehen: ausgewählte Objekte um einen Punkt drehen oder Winkel eingeben</translation>
        </message>
        <message>
            <source>按键提示</source>
            <translation>Tastenhilfe</translation>
        </message>
        <message>
            <source>键入数值时显示或隐藏按键提示</source>
            <translation>Tasten bei der Eingabe von Werten ein- oder ausblenden</translation>
        </message>
        <message>
            <source>视图</source>
            <translation>Ansicht</translation>
        </message>
        <message>
            <source>按 %1 显示</source>
            <translation>Mit %1 anzeigen</translation>
        </message>
        <message>
            <source>全图</source>
            <translation>Alles zeigen</translation>
        </message>
        <message>
            <source>全图：缩放到全部图元</source>
            <translation>Alles zeigen: auf alle Objekte zoomen</translation>
        </message>
        <message>
            <source>窗口</source>
            <translation>Fenster</translation>
        </message>
        <message>
            <source>缩放到两个角点之间</source>
            <translation>Auf den Bereich zwischen zwei Ecken zoomen</translation>
        </message>
        <message>
            <source>放大</source>
            <translation>Vergrößern</translation>
        </message>
        <message>
            <source>放大一倍</source>
            <translation>Doppelt so groß</translation>
        </message>
        <message>
            <source>缩小</source>
            <translation>Verkleinern</translation>
        </message>
        <message>
            <source>缩小一半</source>
            <translation>Halb so groß</translation>
        </message>
        <message>
            <source>重复“%1”</source>
            <translation>„%1“ wiederholen</translation>
        </message>
        <message>
            <source>图元：%1</source>
            <translation>Objekte: %1</translation>
        </message>
        <message>
            <source>移动</source>
            <translation>Verschieben</translation>
        </message>
        <message>
            <source>移动：将所选图元从基点移到目标点，或键入距离和角度</source>
            <translation>Verschieben: ausgewählte Objekte vom Basispunkt zum Ziel verschieben oder Abstand und Winkel eingeben</translation>
        </message>
        <message>
            <source>复制到</source>
            <translation>Kopieren nach</translation>
        </message>
        <message>
            <source>复制到：将所选图元从基点复制到各目标点，或键入距离和角度</source>
            <translation>Kopieren nach: ausgewählte Objekte vom Basispunkt zu Zielen kopieren oder Abstand und Winkel eingeben</translation>
        </message>
        <message>
            <source>镜像</source>
            <translation>Spiegeln</translation>
        </message>
        <message>
            <source>镜像：按两点所定的轴复制所选图元，原图元保留</source>
            <translation>Spiegeln: ausgewählte Objekte an der Achse durch zwei Punkte spiegeln; die Originale bleiben</translation>
        </message>
        <message>
            <source>偏移</source>
            <translation>Versetzen</translation>
        </message>
        <message>
            <source>偏移：单击图元，再单击一侧或键入距离，画出与其平行的图元</source>
            <translation>Versetzen: Objekt anklicken, dann eine Seite klicken oder Abstand eingeben; zeichnet die Parallele</translation>
        </message>
        <message>
            <source>删除所选</source>
            <translation>Auswahl löschen</translation>
        </message>
        <message>
            <source>删除所选图元</source>
            <translation>Ausgewählte Objekte löschen</translation>
        </message>
        <message>
            <source>全选</source>
            <translation>Alles auswählen</translation>
        </message>
        <message>
            <source>选择全部可选的图元</source>
            <translation>Alle auswählbaren Objekte auswählen</translation>
        </message>
        <message>
            <source>选择</source>
            <translation>Auswahl</translation>
        </message>
        <message>
            <source>设置图层</source>
            <translation>Layer setzen</translation>
        </message>
        <message>
            <source>图层</source>
            <comment>of an entity</comment>
            <translation>Layer</translation>
        </message>
        <message>
            <source>捕捉光标附近的%1</source>
            <translation>Fang in Cursornähe: %1</translation>
        </message>
        <message>
            <source>捕捉</source>
            <translation>Fang</translation>
        </message>
        <message>
            <source>撤销</source>
            <translation>Rückgängig</translation>
        </message>
        <message>
            <source>撤销上一步</source>
            <translation>Letzten Schritt rückgängig machen</translation>
        </message>
        <message>
            <source>重做</source>
            <translation>Wiederholen</translation>
        </message>
        <message>
            <source>重做上一步</source>
            <translation>Letzten Schritt wiederholen</translation>
        </message>
        <message>
            <source>长度以此单位显示和键入；图形不变</source>
            <translation>Längen werden in dieser Einheit angezeigt und eingegeben; die Zeichnung bleibt gleich</translation>
        </message>
        <message>
            <source>单位</source>
            <translation>Einheit</translation>
        </message>
        <message>
            <source>%1（查看）</source>
            <translation>%1 (nur ansehen)</translation>
        </message>
        <message>
            <source>原日志未保存，已移入恢复文件夹</source>
            <translation>Ungesichertes Journal verschoben</translation>
        </message>
        <message>
            <source>警告未记录</source>
            <translation>Warnungen nicht protokolliert</translation>
        </message>
        <message>
            <source>无法写入警告日志 %1</source>
            <translation>Das Warnungsprotokoll %1 lässt sich nicht schreiben</translation>
        </message>
        <message>
            <source>面板布局来自更新的版本，已用默认布局</source>
            <translation>Die Palettenanordnung stammt aus einer neueren Version; es gilt das Standardlayout</translation>
        </message>
        <message>
            <source>面板布局文件已损坏，已用默认布局</source>
            <translation>Die Datei der Palettenanordnung ist beschädigt; es gilt das Standardlayout</translation>
        </message>
        <message>
            <source>面板布局不会保存</source>
            <translation>Layout wird nicht gespeichert</translation>
        </message>
        <message>
            <source>无法写入 %1</source>
            <translation>%1 lässt sich nicht schreiben</translation>
        </message>
        <message>
            <source>日志文件无法写入，现有的图纸会丢失，不能继续上次的操作</source>
            <translation>Das Journal lässt sich nicht schreiben, die jetzige Zeichnung ginge verloren: Fortsetzen ist nicht möglich</translation>
        </message>
        <message>
            <source>第 %1 条记录无法重做，其后的操作没有恢复</source>
            <translation>Eintrag %1 lässt sich nicht wiedergeben; was folgt, wurde nicht wiederhergestellt</translation>
        </message>
        <message>
            <source>仅供查看</source>
            <translation>Nur ansehen</translation>
        </message>
        <message>
            <source>在此窗口中所做的操作不会保存</source>
            <translation>Die Arbeit in diesem Fenster wird nicht gesichert</translation>
        </message>
        <message>
            <source>第 %1 条记录无法重做，已恢复 %2 条</source>
            <translation>Eintrag %1 lässt sich nicht wiedergeben; wiederhergestellt: %2</translation>
        </message>
        <message>
            <source>（%1）</source>
            <translation> (%1)</translation>
        </message>
        <message>
            <source>日志改存于另一文件</source>
            <translation>Journal in anderer Datei</translation>
        </message>
        <message>
            <source>中文</source>
            <translation>Deutsch</translation>
        </message>
        <message>
            <source>与桌面相同</source>
            <translation>Wie auf dem Desktop</translation>
        </message>
        <message>
            <source>浅色</source>
            <translation>Hell</translation>
        </message>
        <message>
            <source>深色</source>
            <translation>Dunkel</translation>
        </message>
        <message>
            <source>高对比度</source>
            <translation>Hoher Kontrast</translation>
        </message>
        <message>
            <source>键入空格</source>
            <translation>Gibt ein Leerzeichen ein</translation>
        </message>
        <message>
            <source>关闭</source>
            <comment>off</comment>
            <translation>Aus</translation>
        </message>
        <message>
            <source> 分钟</source>
            <translation> Minuten</translation>
        </message>
        <message>
            <source>设置</source>
            <translation>Einstellungen</translation>
        </message>
        <message>
            <source>语言(&amp;L)</source>
            <translation>&amp;Sprache</translation>
        </message>
        <message>
            <source>颜色(&amp;C)</source>
            <translation>&amp;Farben</translation>
        </message>
        <message>
            <source>长度单位(&amp;U)</source>
            <translation>&amp;Längeneinheit</translation>
        </message>
        <message>
            <source>键入数值时，空格键(&amp;S)</source>
            <translation>Lee&amp;rtaste bei der Eingabe</translation>
        </message>
        <message>
            <source>日志文件夹(&amp;J)</source>
            <translation>&amp;Journalordner</translation>
        </message>
        <message>
            <source>自动保存间隔(&amp;A)</source>
            <translation>&amp;Automatisch sichern alle</translation>
        </message>
        <message>
            <source>日志文件夹不可写</source>
            <translation>Der Journalordner ist schreibgeschützt</translation>
        </message>
        <message>
            <source>日志文件夹不存在</source>
            <translation>Der Journalordner ist nicht vorhanden</translation>
        </message>
        <message>
            <source>留空则用 %1</source>
            <translation>Wenn leer: %1</translation>
        </message>
        <message>
            <source>浏览…</source>
            <translation>Durchsuchen…</translation>
        </message>
        <message>
            <source>恢复默认值</source>
            <translation>Standardwerte</translation>
        </message>
        <message>
            <source>日志文件夹</source>
            <translation>Journalordner</translation>
        </message>
        <message>
            <source>无法保存设置：%1</source>
            <translation>Die Einstellungen lassen sich nicht speichern: %1</translation>
        </message>
        <message>
            <source>折叠功能区</source>
            <translation>Menüband einklappen</translation>
        </message>
        <message>
            <source>只显示功能区的选项卡，或恢复显示</source>
            <translation>Nur die Reiter des Menübands zeigen oder wieder alles</translation>
        </message>
        <message>
            <source>语言、颜色、单位、捕捉、按键和日志</source>
            <translation>Sprache, Farben, Einheit, Fang, Tasten und Journal</translation>
        </message>
        <message>
            <source>开始</source>
            <translation>Start</translation>
        </message>
        <message>
            <source>草图</source>
            <translation>Skizze</translation>
        </message>
        <message>
            <source>光标处的图元</source>
            <translation>Objekt am Cursor</translation>
        </message>
        <message>
            <source>线条</source>
            <translation>Linien</translation>
        </message>
        <message>
            <source>绘图设置</source>
            <translation>Zeichenhilfen</translation>
        </message>
        <message>
            <source>正在进行的操作的进度；Esc 取消</source>
            <translation>Fortschritt des laufenden Vorgangs; Esc bricht ab</translation>
        </message>
        <message>
            <source>不保存</source>
            <translation>Verwerfen</translation>
        </message>
        <message>
            <source>是(&amp;Y)</source>
            <translation>&amp;Ja</translation>
        </message>
        <message>
            <source>否(&amp;N)</source>
            <translation>&amp;Nein</translation>
        </message>
        <message>
            <source>中止</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>重试</source>
            <translation>Wiederholen</translation>
        </message>
        <message>
            <source>忽略</source>
            <translation>Ignorieren</translation>
        </message>
        <message>
            <source>显示详细信息…</source>
            <translation>Details anzeigen…</translation>
        </message>
        <message>
            <source>隐藏详细信息…</source>
            <translation>Details ausblenden…</translation>
        </message>
        <message>
            <source>撤销(&amp;U)</source>
            <translation>&amp;Rückgängig</translation>
        </message>
        <message>
            <source>重做(&amp;R)</source>
            <translation>&amp;Wiederholen</translation>
        </message>
        <message>
            <source>剪切(&amp;T)</source>
            <translation>Aussc&amp;hneiden</translation>
        </message>
        <message>
            <source>复制(&amp;C)</source>
            <translation>&amp;Kopieren</translation>
        </message>
        <message>
            <source>复制链接地址(&amp;L)</source>
            <translation>&amp;Linkadresse kopieren</translation>
        </message>
        <message>
            <source>粘贴(&amp;P)</source>
            <translation>&amp;Einfügen</translation>
        </message>
        <message>
            <source>全选(&amp;S)</source>
            <translation>&amp;Alles auswählen</translation>
        </message>
        <message>
            <source>增大(&amp;U)</source>
            <translation>&amp;Erhöhen</translation>
        </message>
        <message>
            <source>减小(&amp;D)</source>
            <translation>&amp;Verringern</translation>
        </message>
        <message>
            <source>浮动</source>
            <translation>Lösen</translation>
        </message>
        <message>
            <source>浮动，或放回窗口</source>
            <translation>Lösen oder wieder andocken</translation>
        </message>
        <message>
            <source>关闭面板</source>
            <translation>Palette schließen</translation>
        </message>
        <message>
            <source>文件夹：</source>
            <translation>Ordner:</translation>
        </message>
        <message>
            <source>文件名(&amp;N)：</source>
            <translation>Datei&amp;name:</translation>
        </message>
        <message>
            <source>类型：</source>
            <translation>Typ:</translation>
        </message>
        <message>
            <source>打开(&amp;O)</source>
            <translation>Ö&amp;ffnen</translation>
        </message>
        <message>
            <source>选择(&amp;C)</source>
            <translation>Aus&amp;wählen</translation>
        </message>
        <message>
            <source>选择文件夹</source>
            <translation>Ordner auswählen</translation>
        </message>
        <message>
            <source>文件夹</source>
            <translation>Ordner</translation>
        </message>
        <message>
            <source>后退</source>
            <translation>Zurück</translation>
        </message>
        <message>
            <source>前进</source>
            <translation>Vorwärts</translation>
        </message>
        <message>
            <source>上一级</source>
            <translation>Übergeordneter Ordner</translation>
        </message>
        <message>
            <source>转到上一级文件夹</source>
            <translation>Zum übergeordneten Ordner</translation>
        </message>
        <message>
            <source>新建文件夹</source>
            <translation>Neuer Ordner</translation>
        </message>
        <message>
            <source>新建文件夹(&amp;N)</source>
            <translation>&amp;Neuer Ordner</translation>
        </message>
        <message>
            <source>列表</source>
            <translation>Liste</translation>
        </message>
        <message>
            <source>显示为列表</source>
            <translation>Als Liste anzeigen</translation>
        </message>
        <message>
            <source>详细信息</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>显示详细信息</source>
            <translation>Mit Details anzeigen</translation>
        </message>
        <message>
            <source>位置</source>
            <translation>Orte</translation>
        </message>
        <message>
            <source>常用位置</source>
            <translation>Liste der Orte</translation>
        </message>
        <message>
            <source>重命名(&amp;R)</source>
            <translation>&amp;Umbenennen</translation>
        </message>
        <message>
            <source>删除(&amp;D)</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>显示隐藏文件(&amp;H)</source>
            <translation>&amp;Verborgene Dateien anzeigen</translation>
        </message>
        <message>
            <source>显示 </source>
            <translation>Zeige </translation>
        </message>
        <message>
            <source>移除</source>
            <translation>Entfernen</translation>
        </message>
        <message>
            <source>最近的位置</source>
            <translation>Zuletzt besucht</translation>
        </message>
        <message>
            <source>大小</source>
            <translation>Größe</translation>
        </message>
        <message>
            <source>修改时间</source>
            <translation>Geändert</translation>
        </message>
        <message>
            <source>计算机</source>
            <translation>Computer</translation>
        </message>
        <message>
            <source>驱动器</source>
            <translation>Laufwerk</translation>
        </message>
        <message>
            <source>%1 文件</source>
            <translation>%1-Datei</translation>
        </message>
        <message>
            <source>字节</source>
            <translation>Bytes</translation>
        </message>
        <message>
            <source>“%1”已经存在。
要替换它吗？</source>
            <translation>„%1“ ist schon vorhanden.
Ersetzen?</translation>
        </message>
        <message>
            <source>%1
找不到该文件。
请检查文件名。</source>
            <translation>%1
Datei nicht gefunden.
Dateinamen prüfen.</translation>
        </message>
        <message>
            <source>%1
找不到该文件夹。
请检查文件夹名。</source>
            <translation>%1
Ordner nicht gefunden.
Ordnernamen prüfen.</translation>
        </message>
        <message>
            <source>“%1”有写保护。
仍要删除吗？</source>
            <translation>„%1“ ist schreibgeschützt.
Trotzdem löschen?</translation>
        </message>
        <message>
            <source>要删除“%1”吗？</source>
            <translation>„%1“ löschen?</translation>
        </message>
        <message>
            <source>无法删除文件夹。</source>
            <translation>Der Ordner lässt sich nicht löschen.</translation>
        </message>
        <message>
            <source>文件名无效</source>
            <translation>Ungültiger Dateiname</translation>
        </message>
        <message>
            <source>&lt;b&gt;不能使用名称“%1”。&lt;/b&gt;&lt;p&gt;请换一个较短或不含标点的名称。</source>
            <translation>&lt;b&gt;Der Name „%1“ lässt sich nicht verwenden.&lt;/b&gt;&lt;p&gt;Kürzeren Namen oder Namen ohne Satzzeichen verwenden.</translation>
        </message>
        <message>
            <source>圆心圆弧：单击圆心，或键入坐标；Esc 结束</source>
            <translation>Mittelpunktbogen: Mittelpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>圆心圆弧：单击起点，或键入坐标；Esc 结束</source>
            <translation>Mittelpunktbogen: Startpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>圆心圆弧：单击端点，或键入圆心角（逆时针为正）；Esc 结束</source>
            <translation>Mittelpunktbogen: Endpunkt klicken oder Zentriwinkel eingeben (gegen den Uhrzeigersinn positiv); Esc beendet</translation>
        </message>
        <message>
            <source>三点圆弧：单击起点，或键入坐标；Esc 结束</source>
            <translation>3-Punkt-Bogen: Startpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>三点圆弧：单击端点，或键入坐标；Esc 结束</source>
            <translation>3-Punkt-Bogen: Endpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>三点圆弧：单击弧上一点，或键入半径；Esc 结束</source>
            <translation>3-Punkt-Bogen: Bogenpunkt klicken oder Radius eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>圆：单击圆上一点，或键入半径；Esc 结束</source>
            <translation>Kreis: Kreispunkt klicken oder Radius eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>圆：单击圆心，或键入坐标；Esc 结束</source>
            <translation>Kreis: Mittelpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>这个值在这里不起作用，请换一个</source>
            <translation>Dieser Wert wirkt hier nicht; einen anderen eingeben</translation>
        </message>
        <message>
            <source>删除：单击要删除的图元；Esc 结束</source>
            <translation>Löschen: zu löschende Objekte anklicken; Esc beendet</translation>
        </message>
        <message>
            <source>直线：单击下一点，或键入长度（Tab 切换到角度）；Esc 结束</source>
            <translation>Linie: nächsten Punkt klicken oder Länge eingeben (Tab für den Winkel); Esc beendet</translation>
        </message>
        <message>
            <source>直线：单击起点，或键入坐标；Esc 结束</source>
            <translation>Linie: Startpunkt klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>单击要镜像的图元</source>
            <translation>zu spiegelnde Objekte anklicken</translation>
        </message>
        <message>
            <source>单击镜像轴上的第一点，或再单击一并镜像的图元</source>
            <translation>ersten Punkt der Achse klicken oder weitere Objekte anklicken</translation>
        </message>
        <message>
            <source>单击镜像轴上的第一点</source>
            <translation>ersten Punkt der Achse klicken</translation>
        </message>
        <message>
            <source>单击镜像轴上的第二点，或键入距离（Tab 切换到角度）</source>
            <translation>zweiten Punkt der Achse klicken oder Abstand eingeben (Tab für den Winkel)</translation>
        </message>
        <message>
            <source>单击要移动的图元</source>
            <translation>zu verschiebende Objekte anklicken</translation>
        </message>
        <message>
            <source>单击基点，或再单击一并移动的图元</source>
            <translation>Basispunkt klicken oder weitere Objekte anklicken</translation>
        </message>
        <message>
            <source>单击基点，或键入坐标</source>
            <translation>Basispunkt klicken oder Koordinaten eingeben</translation>
        </message>
        <message>
            <source>单击目标点，或键入距离（Tab 切换到角度）</source>
            <translation>Zielpunkt klicken oder Abstand eingeben (Tab für den Winkel)</translation>
        </message>
        <message>
            <source>单击要复制的图元</source>
            <translation>zu kopierende Objekte anklicken</translation>
        </message>
        <message>
            <source>单击基点，或再单击一并复制的图元</source>
            <translation>Basispunkt klicken oder weitere Objekte anklicken</translation>
        </message>
        <message>
            <source>偏移：单击偏移后通过的点，或键入距离（光标所在一侧）；Esc 结束</source>
            <translation>Versetzen: Punkt der Parallelen klicken oder Abstand eingeben (auf der Seite des Cursors); Esc beendet</translation>
        </message>
        <message>
            <source>偏移：单击要偏移的图元；Esc 结束</source>
            <translation>Versetzen: zu versetzendes Objekt anklicken; Esc beendet</translation>
        </message>
        <message>
            <source>偏移的方向由光标所在一侧决定</source>
            <translation>Die Seite des Cursors bestimmt, wo die Parallele liegt</translation>
        </message>
        <message>
            <source>矩形：单击对角点，或键入宽度（Tab 切换到高度）；Esc 结束</source>
            <translation>Rechteck: gegenüberliegende Ecke klicken oder Breite eingeben (Tab für die Höhe); Esc beendet</translation>
        </message>
        <message>
            <source>矩形：单击第一个角点，或键入坐标；Esc 结束</source>
            <translation>Rechteck: erste Ecke klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>单击要旋转的图元</source>
            <translation>zu drehende Objekte anklicken</translation>
        </message>
        <message>
            <source>单击旋转中心，或再单击一并旋转的图元</source>
            <translation>Drehpunkt klicken oder weitere Objekte anklicken</translation>
        </message>
        <message>
            <source>单击旋转中心，或键入坐标</source>
            <translation>Drehpunkt klicken oder Koordinaten eingeben</translation>
        </message>
        <message>
            <source>单击目标方向上的一点，或键入角度（逆时针为正）</source>
            <translation>Punkt in der neuen Richtung klicken oder Winkel eingeben (gegen den Uhrzeigersinn positiv)</translation>
        </message>
        <message>
            <source>单击起始方向上的一点，或键入坐标</source>
            <translation>Punkt in der Ausgangsrichtung klicken oder Koordinaten eingeben</translation>
        </message>
        <message>
            <source>%1：%2；Esc 结束</source>
            <translation>%1: %2; Esc beendet</translation>
        </message>
        <message>
            <source>窗口缩放：单击对角点，或键入坐标；Esc 结束</source>
            <translation>Fensterzoom: gegenüberliegende Ecke klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>窗口缩放：单击第一个角点，或键入坐标；Esc 结束</source>
            <translation>Fensterzoom: erste Ecke klicken oder Koordinaten eingeben; Esc beendet</translation>
        </message>
        <message>
            <source>%1 #%2：%3</source>
            <translation>%1 #%2: %3</translation>
        </message>
        <message>
            <source>端点</source>
            <translation>Endpunkt</translation>
        </message>
        <message>
            <source>中点</source>
            <translation>Mitte</translation>
        </message>
        <message>
            <source>圆心</source>
            <translation>Zentrum</translation>
        </message>
        <message>
            <source>交点</source>
            <translation>Schnitt</translation>
        </message>
        <message>
            <source>栅格</source>
            <translation>Raster</translation>
        </message>
        <message>
            <source>；</source>
            <translation>; </translation>
        </message>
        <message>
            <source>X %1，Y %2 %3</source>
            <translation>X %1, Y %2 %3</translation>
        </message>
    </context>
    <context>
        <name>VeskUiQtImpl</name>
        <message>
            <source>确定</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>调试警告</source>
            <translation>Debug-Warnung</translation>
        </message>
        <message>
            <source>用户名：</source>
            <translation>Benutzer:</translation>
        </message>
        <message>
            <source>密码：</source>
            <translation>Pass:</translation>
        </message>
        <message>
            <source>报告</source>
            <translation>Melden</translation>
        </message>
        <message>
            <source>忽略一次</source>
            <translation>Übergehen</translation>
        </message>
        <message>
            <source>忽略所有</source>
            <translation>Alle übergehen</translation>
        </message>
        <message>
            <source>调试</source>
            <translation>Debuggen</translation>
        </message>
        <message>
            <source>信息</source>
            <translation>Meldung</translation>
        </message>
        <message>
            <source>文件：</source>
            <translation>Datei:</translation>
        </message>
        <message>
            <source>行号：</source>
            <translation>Zeile:</translation>
        </message>
        <message>
            <source>函数：</source>
            <translation>Funkt:</translation>
        </message>
        <message>
            <source>负责人：</source>
            <translation>Person:</translation>
        </message>
        <message>
            <source>日期：</source>
            <translation>Datum:</translation>
        </message>
    </context>
</TS>
