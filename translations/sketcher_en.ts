<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
    <context>
        <name>Host</name>
        <message>
            <source>长度</source>
            <translation>Length</translation>
        </message>
        <message>
            <source>角度</source>
            <translation>Angle</translation>
        </message>
        <message>
            <source>半径</source>
            <translation>Radius</translation>
        </message>
        <message>
            <source>圆心角</source>
            <translation>Central angle</translation>
        </message>
        <message>
            <source>宽度</source>
            <translation>Width</translation>
        </message>
        <message>
            <source>高度</source>
            <translation>Height</translation>
        </message>
        <message>
            <source>整数</source>
            <translation>an integer</translation>
        </message>
        <message>
            <source>数</source>
            <translation>a number</translation>
        </message>
        <message>
            <source>请输入一个%1</source>
            <translation>Enter %1</translation>
        </message>
        <message>
            <source>请输入 %1 到 %2 之间的%3</source>
            <translation>Enter %3 from %1 to %2</translation>
        </message>
        <message>
            <source>不小于 %1</source>
            <translation>not less than %1</translation>
        </message>
        <message>
            <source>大于 %1</source>
            <translation>greater than %1</translation>
        </message>
        <message>
            <source>不大于 %1</source>
            <translation>not greater than %1</translation>
        </message>
        <message>
            <source>小于 %1</source>
            <translation>less than %1</translation>
        </message>
        <message>
            <source>请输入%1 且%2 的%3</source>
            <translation>Enter %3 %1 and %2</translation>
        </message>
        <message>
            <source>请输入%1 的%2</source>
            <translation>Enter %2 %1</translation>
        </message>
    </context>
    <context>
        <name>HostUi</name>
        <message>
            <source>对话框打开时发生的警告，见标准错误输出</source>
            <translation>Warnings raised while a dialog was open: see standard error</translation>
        </message>
        <message>
            <source>对话框打开时发生的警告，见日志：%1</source>
            <translation>Warnings raised while a dialog was open: see the log %1</translation>
        </message>
        <message>
            <source>提示</source>
            <translation>Prompt</translation>
        </message>
        <message>
            <source>光标位置</source>
            <translation>Cursor position</translation>
        </message>
        <message>
            <source>；</source>
            <translation>; </translation>
        </message>
        <message>
            <source>未显示的警告：%1</source>
            <translation>Warnings not shown: %1</translation>
        </message>
        <message>
            <source>这不是一个数，也不是算式</source>
            <translation>Neither a number nor a formula</translation>
        </message>
        <message>
            <source>含有不认识的名称或单位</source>
            <translation>Contains an unknown name or unit</translation>
        </message>
        <message>
            <source>逗号有歧义，小数点请用“.”</source>
            <translation>The comma is ambiguous: use “.” as the decimal point</translation>
        </message>
        <message>
            <source>有歧义，请加括号</source>
            <translation>Ambiguous: use brackets</translation>
        </message>
        <message>
            <source>单位不一致，请给每一项写上单位</source>
            <translation>Mixed units: give each term its unit</translation>
        </message>
        <message>
            <source>单位与此处的量不符</source>
            <translation>The unit does not fit this quantity</translation>
        </message>
        <message>
            <source>角度请以度为单位，如 30d 或 sin(30d)</source>
            <translation>Write angles in degrees, such as 30d or sin(30d)</translation>
        </message>
        <message>
            <source>算不出确定的值</source>
            <translation>Has no definite value</translation>
        </message>
        <message>
            <source>还没有上一点，不能用“@”</source>
            <translation>There is no last point yet for “@” to count from</translation>
        </message>
        <message>
            <source>请输入 %1 到 %2 之间的数</source>
            <translation>Enter a number from %1 to %2</translation>
        </message>
        <message>
            <source>空格已经确定了数值，其后的“%1”没有采用；撤销（Ctrl+Z）一次即可取回</source>
            <translation>Space has committed the value; the “%1” after it was not used. Undo once (Ctrl+Z) to take it back</translation>
        </message>
        <message>
            <source>空格</source>
            <translation>Space</translation>
        </message>
        <message>
            <source>确定</source>
            <translation>Accept</translation>
        </message>
        <message>
            <source>取消</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>%1 坐标</source>
            <translation>%1 coordinate</translation>
        </message>
        <message>
            <source>这个点在这里不起作用，请换一个</source>
            <translation>This point has no effect here; type another</translation>
        </message>
        <message>
            <source>选中</source>
            <translation>Checked</translation>
        </message>
        <message numerus="yes">
            <source>%n 项</source>
            <translation>
                <numerusform>%n item</numerusform>
                <numerusform>%n items</numerusform>
            </translation>
        </message>
        <message>
            <source>按钮</source>
            <translation>Button</translation>
        </message>
        <message>
            <source>标签</source>
            <translation>Label</translation>
        </message>
        <message>
            <source>输入框</source>
            <translation>Text field</translation>
        </message>
        <message>
            <source>下拉框</source>
            <translation>Combo box</translation>
        </message>
        <message>
            <source>进度条</source>
            <translation>Progress bar</translation>
        </message>
        <message>
            <source>复选组</source>
            <translation>Check boxes</translation>
        </message>
        <message>
            <source>单选组</source>
            <translation>Radio buttons</translation>
        </message>
        <message>
            <source>菜单</source>
            <translation>Menu</translation>
        </message>
        <message>
            <source>其他</source>
            <translation>Other</translation>
        </message>
        <message>
            <source>添加</source>
            <translation>Added</translation>
        </message>
        <message>
            <source>插入</source>
            <translation>Inserted</translation>
        </message>
        <message>
            <source>删除</source>
            <translation>Removed</translation>
        </message>
        <message>
            <source>清空</source>
            <translation>Cleared</translation>
        </message>
        <message>
            <source>属性</source>
            <translation>Property</translation>
        </message>
        <message>
            <source>无</source>
            <translation>None</translation>
        </message>
        <message>
            <source>等待键入</source>
            <translation>Waiting for a value</translation>
        </message>
        <message>
            <source>原文</source>
            <translation>Raw text</translation>
        </message>
        <message>
            <source>已锁定 %1</source>
            <translation>%1 locked</translation>
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
            <translation>Kind</translation>
        </message>
        <message>
            <source>值</source>
            <translation>Value</translation>
        </message>
        <message>
            <source>可见</source>
            <translation>Visible</translation>
        </message>
        <message>
            <source>可用</source>
            <translation>Enabled</translation>
        </message>
        <message>
            <source>用户</source>
            <translation>User</translation>
        </message>
        <message>
            <source>程序</source>
            <translation>Program</translation>
        </message>
        <message>
            <source>%1（%2）</source>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>动作：%1
尺寸输入：%2</source>
            <translation>Action: %1
Dimension input: %2</translation>
        </message>
        <message>
            <source>是</source>
            <translation>Yes</translation>
        </message>
        <message>
            <source>否</source>
            <translation>No</translation>
        </message>
        <message>
            <source>浮动(&amp;F)</source>
            <translation>&amp;Float</translation>
        </message>
        <message>
            <source>关闭(&amp;C)</source>
            <translation>&amp;Close</translation>
        </message>
        <message>
            <source>移到左侧(&amp;L)</source>
            <translation>Move to the &amp;left</translation>
        </message>
        <message>
            <source>移到右侧(&amp;R)</source>
            <translation>Move to the &amp;right</translation>
        </message>
        <message>
            <source>移到上方(&amp;T)</source>
            <translation>Move to the &amp;top</translation>
        </message>
        <message>
            <source>移到下方(&amp;B)</source>
            <translation>Move to the &amp;bottom</translation>
        </message>
        <message>
            <source>加宽(&amp;W)</source>
            <translation>&amp;Wider</translation>
        </message>
        <message>
            <source>缩窄(&amp;N)</source>
            <translation>&amp;Narrower</translation>
        </message>
        <message>
            <source>加高(&amp;A)</source>
            <translation>T&amp;aller</translation>
        </message>
        <message>
            <source>减低(&amp;S)</source>
            <translation>&amp;Shorter</translation>
        </message>
    </context>
    <context>
        <name>Sketcher</name>
        <message>
            <source>剪贴板中的图元来自更新的版本，未粘贴</source>
            <translation>Not pasted: the entities on the clipboard are from a newer version</translation>
        </message>
        <message>
            <source>剪贴板中的图元已损坏，未粘贴</source>
            <translation>Not pasted: the entities on the clipboard are damaged</translation>
        </message>
        <message>
            <source>粘贴内容</source>
            <translation>Paste content</translation>
        </message>
        <message>
            <source>按距离再制</source>
            <translation>Duplicate at a distance</translation>
        </message>
        <message>
            <source>剪切</source>
            <translation>Cut</translation>
        </message>
        <message>
            <source>将所选图元移到剪贴板</source>
            <translation>Move the selected entities to the clipboard</translation>
        </message>
        <message>
            <source>复制</source>
            <translation>Copy</translation>
        </message>
        <message>
            <source>将所选图元复制到剪贴板</source>
            <translation>Copy the selected entities to the clipboard</translation>
        </message>
        <message>
            <source>粘贴</source>
            <translation>Paste</translation>
        </message>
        <message>
            <source>粘贴剪贴板中的图元</source>
            <translation>Paste the entities on the clipboard</translation>
        </message>
        <message>
            <source>再制</source>
            <translation>Duplicate</translation>
        </message>
        <message>
            <source>在旁边再画一份所选图元</source>
            <translation>Draw the selected entities once more beside themselves</translation>
        </message>
        <message>
            <source>剪贴板</source>
            <translation>Clipboard</translation>
        </message>
        <message>
            <source>剪贴板中没有图元</source>
            <translation>There are no entities on the clipboard</translation>
        </message>
        <message>
            <source>剪贴板中的图元太多，未粘贴</source>
            <translation>Not pasted: too many entities on the clipboard</translation>
        </message>
        <message>
            <source>剪贴板中的图元无法存于日志旁，未粘贴</source>
            <translation>Not pasted: the entities cannot be kept beside the journal</translation>
        </message>
        <message>
            <source>新建</source>
            <translation>New</translation>
        </message>
        <message>
            <source>新建空白图纸</source>
            <translation>New empty drawing</translation>
        </message>
        <message>
            <source>打开</source>
            <translation>Open</translation>
        </message>
        <message>
            <source>打开图纸文件</source>
            <translation>Open a drawing file</translation>
        </message>
        <message>
            <source>最近</source>
            <translation>Recent</translation>
        </message>
        <message>
            <source>打开最近用过的图纸文件</source>
            <translation>Open a drawing file used recently</translation>
        </message>
        <message>
            <source>保存</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>保存图纸</source>
            <translation>Save the drawing</translation>
        </message>
        <message>
            <source>另存为</source>
            <translation>Save as</translation>
        </message>
        <message>
            <source>将图纸保存为另一个文件</source>
            <translation>Save the drawing as another file</translation>
        </message>
        <message>
            <source>关闭</source>
            <translation>Close</translation>
        </message>
        <message>
            <source>关闭图纸</source>
            <translation>Close the drawing</translation>
        </message>
        <message>
            <source>文件</source>
            <translation>File</translation>
        </message>
        <message>
            <source>空白图纸</source>
            <translation>Empty drawing</translation>
        </message>
        <message>
            <source>打开内容</source>
            <translation>Open content</translation>
        </message>
        <message>
            <source>保存内容</source>
            <translation>Save content</translation>
        </message>
        <message>
            <source>图纸 (*.vsk)</source>
            <translation>Drawings (*.vsk)</translation>
        </message>
        <message>
            <source>所有文件 (*)</source>
            <translation>All files (*)</translation>
        </message>
        <message>
            <source>取消</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>要保存对“%1”的更改吗？</source>
            <translation>Save the changes to “%1”?</translation>
        </message>
        <message>
            <source>如果不保存，更改将丢失。</source>
            <translation>Otherwise the changes will be lost.</translation>
        </message>
        <message>
            <source>保存(&amp;S)</source>
            <translation>&amp;Save</translation>
        </message>
        <message>
            <source>不保存(&amp;N)</source>
            <translation>Do&amp;n't save</translation>
        </message>
        <message>
            <source>“%1”打开之后已被其他程序修改。</source>
            <translation>“%1” has been changed by another program since it was opened.</translation>
        </message>
        <message>
            <source>覆盖会丢失那些修改；也可以取消，再另存为其他文件。</source>
            <translation>Overwriting loses those changes; you can also cancel, and save as another file.</translation>
        </message>
        <message>
            <source>覆盖</source>
            <translation>Overwrite</translation>
        </message>
        <message>
            <source>“%1”已在另一个程序中打开。</source>
            <translation>“%1” is open in another program.</translation>
        </message>
        <message>
            <source>打开它的程序：%1</source>
            <translation>Opened by: %1</translation>
        </message>
        <message>
            <source>以只读方式打开</source>
            <translation>Open read-only</translation>
        </message>
        <message>
            <source>打开图纸</source>
            <translation>Open drawing</translation>
        </message>
        <message>
            <source>图纸另存为</source>
            <translation>Save drawing as</translation>
        </message>
        <message>
            <source>“%1”已经存在。</source>
            <translation>“%1” already exists.</translation>
        </message>
        <message>
            <source>替换会丢失它现在的内容。</source>
            <translation>Replacing it loses its present content.</translation>
        </message>
        <message>
            <source>替换</source>
            <translation>Replace</translation>
        </message>
        <message>
            <source>确定</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>%1（%2，进程 %3）</source>
            <translation>%1 (%2, process %3)</translation>
        </message>
        <message>
            <source>该文件由更新版本的程序保存，请用新版本打开。</source>
            <translation>The file was saved by a newer version of the program; open it with that version.</translation>
        </message>
        <message>
            <source>文件第 %1 行有错误。文件保持原样。</source>
            <translation>Line %1 of the file is wrong. The file is left as it is.</translation>
        </message>
        <message>
            <source>文件夹不存在。</source>
            <translation>The folder does not exist.</translation>
        </message>
        <message>
            <source>这不是普通文件。</source>
            <translation>Not a regular file.</translation>
        </message>
        <message>
            <source>没有写入权限。</source>
            <translation>No permission to write.</translation>
        </message>
        <message>
            <source>磁盘空间不足。</source>
            <translation>Not enough disk space.</translation>
        </message>
        <message>
            <source>写入时出错，原文件保持不变。</source>
            <translation>Writing failed; the file is unchanged.</translation>
        </message>
        <message>
            <source>日志旁无法保留该文件的副本，没有它就不能恢复所做的操作。</source>
            <translation>No copy of the file can be kept beside the journal; without it your work could not be recovered.</translation>
        </message>
        <message>
            <source>内存不足。</source>
            <translation>Not enough memory.</translation>
        </message>
        <message>
            <source>图纸</source>
            <translation>Drawing</translation>
        </message>
        <message>
            <source>没有最近的文件</source>
            <translation>No recent files</translation>
        </message>
        <message>
            <source>无法打开“%1”</source>
            <translation>Cannot open “%1”</translation>
        </message>
        <message>
            <source>无法保存“%1”</source>
            <translation>Cannot save “%1”</translation>
        </message>
        <message>
            <source>该文件已在另一个程序中打开：%1</source>
            <translation>The file is open in another program: %1</translation>
        </message>
        <message>
            <source>已保存 %1</source>
            <translation>Saved %1</translation>
        </message>
        <message>
            <source>：</source>
            <translation>: </translation>
        </message>
        <message>
            <source>文件未加锁</source>
            <translation>File not locked</translation>
        </message>
        <message>
            <source>文件夹中无法建立锁文件，其他程序不会知道该文件已打开</source>
            <translation>No lock file can be created in the folder: other programs will not know that the file is open</translation>
        </message>
        <message>
            <source>只读</source>
            <translation>Read-only</translation>
        </message>
        <message>
            <source>该文件已在另一个程序中打开，更改只能另存为其他文件</source>
            <translation>The file is open in another program; changes can only be saved as another file</translation>
        </message>
        <message>
            <source>绘制精确图形；每次绘图都可以重放。</source>
            <translation>Draws with precision; all that was drawn can be replayed.</translation>
        </message>
        <message>
            <source>许可证：%1</source>
            <translation>Licence: %1</translation>
        </message>
        <message>
            <source>使用的库：</source>
            <translation>Libraries used:</translation>
        </message>
        <message>
            <source>Qt 版本：%1</source>
            <translation>Qt version: %1</translation>
        </message>
        <message>
            <source>DXF 文件由单独的程序 vesk-dxf 读写，它使用 dxflib，许可证：%1</source>
            <translation>DXF files are read and written by a separate program, vesk-dxf, which uses dxflib; licence: %1</translation>
        </message>
        <message>
            <source>帮助</source>
            <translation>Help</translation>
        </message>
        <message>
            <source>按键，和可以键入的数值</source>
            <translation>Keys, and values that can be typed</translation>
        </message>
        <message>
            <source>关于</source>
            <translation>About</translation>
        </message>
        <message>
            <source>版本和许可证</source>
            <translation>Version and licences</translation>
        </message>
        <message>
            <source>关于 Sketcher</source>
            <translation>About Sketcher</translation>
        </message>
        <message>
            <source>左键</source>
            <translation>Left button</translation>
        </message>
        <message>
            <source>画点；没有工具时选取图元，按 Ctrl 增减</source>
            <translation>Sets points; without a tool selects entities, with Ctrl adds or removes them</translation>
        </message>
        <message>
            <source>左键拖动</source>
            <translation>Drag with the left button</translation>
        </message>
        <message>
            <source>向右框选全部在框内的图元，向左也选碰到框的</source>
            <translation>To the right: selects what is inside the box; to the left: also what the box touches</translation>
        </message>
        <message>
            <source>滚轮</source>
            <translation>Wheel</translation>
        </message>
        <message>
            <source>以光标为中心缩放</source>
            <translation>Zooms about the cursor</translation>
        </message>
        <message>
            <source>中键拖动</source>
            <translation>Drag with the middle button</translation>
        </message>
        <message>
            <source>平移</source>
            <translation>Pans</translation>
        </message>
        <message>
            <source>方向键</source>
            <translation>Arrow keys</translation>
        </message>
        <message>
            <source>光标移到下一栅格点，按 Shift 移十分之一；按 Ctrl 移动画面</source>
            <translation>Move the cursor to the next grid point, with Shift by a tenth; with Ctrl move the picture</translation>
        </message>
        <message>
            <source>方向键之后的空格</source>
            <translation>Space after an arrow key</translation>
        </message>
        <message>
            <source>在光标处单击，直到按 Esc 或移动鼠标</source>
            <translation>Clicks at the cursor, until Esc or until the mouse moves</translation>
        </message>
        <message>
            <source>Shift+空格</source>
            <translation>Shift+Space</translation>
        </message>
        <message>
            <source>开始框选，再按空格结束</source>
            <translation>Begins a selection box there; the next Space ends it</translation>
        </message>
        <message>
            <source>放大、缩小</source>
            <translation>Zoom in, zoom out</translation>
        </message>
        <message>
            <source>转到下一区域或上一区域：图纸、面板、功能区</source>
            <translation>To the next or the previous area: drawing, panes, ribbon</translation>
        </message>
        <message>
            <source>打开所在面板的菜单：浮动、移动、改变大小、关闭</source>
            <translation>Opens the menu of the pane that has the keyboard: float, move, resize, close</translation>
        </message>
        <message>
            <source>数字</source>
            <translation>Digits</translation>
        </message>
        <message>
            <source>工具运行时键入长度、半径或角度</source>
            <translation>Type a length, radius or angle while a tool runs</translation>
        </message>
        <message>
            <source>锁定此值，转到另一个值</source>
            <translation>Locks the value and goes to the other one</translation>
        </message>
        <message>
            <source>确定数值</source>
            <translation>Commits the value</translation>
        </message>
        <message>
            <source>点的坐标</source>
            <translation>Coordinates of a point</translation>
        </message>
        <message>
            <source>工具要点时键入数：Tab 转到另一坐标，Enter 确定；数前加 @ 从上一点算起</source>
            <translation>Type a number where a tool asks for a point: Tab goes to the other coordinate, Enter accepts; an @ before it counts from the last point</translation>
        </message>
        <message>
            <source>空格</source>
            <translation>Space</translation>
        </message>
        <message>
            <source>键入的是数时确定（可在设置中改为键入空格）</source>
            <translation>Commits a number (the settings can make it type a space)</translation>
        </message>
        <message>
            <source>依次取消键入、解除锁定、结束工具、取消选取</source>
            <translation>In turn cancels the typing, unlocks, ends the tool, deselects</translation>
        </message>
        <message>
            <source>Alt 或 F10</source>
            <translation>Alt or F10</translation>
        </message>
        <message>
            <source>显示功能区的按键</source>
            <translation>Shows the keys of the ribbon</translation>
        </message>
        <message>
            <source>鼠标</source>
            <translation>Mouse</translation>
        </message>
        <message>
            <source>键入数值</source>
            <translation>Typing values</translation>
        </message>
        <message>
            <source>不用鼠标</source>
            <translation>Without the mouse</translation>
        </message>
        <message>
            <source>可以键入</source>
            <translation>Can be typed</translation>
        </message>
        <message>
            <source>不会猜测，因此不接受</source>
            <translation>Rejected, because nothing is guessed</translation>
        </message>
        <message>
            <source>命令</source>
            <translation>Commands</translation>
        </message>
        <message>
            <source>数，用所示的单位；角度为度</source>
            <translation>Number in the unit shown; angles in degrees</translation>
        </message>
        <message>
            <source>小数逗号，即 3.5</source>
            <translation>Decimal comma: 3.5</translation>
        </message>
        <message>
            <source>算式：+ - * / ^ 和括号</source>
            <translation>Formula: + - * / ^ and brackets</translation>
        </message>
        <message>
            <source>带单位：mm cm dm m km in " ft '</source>
            <translation>With a unit: mm cm dm m km in " ft '</translation>
        </message>
        <message>
            <source>英尺和英寸</source>
            <translation>Feet and inches</translation>
        </message>
        <message>
            <source>分数，单位前可有空格</source>
            <translation>Fraction; a space may precede the unit</translation>
        </message>
        <message>
            <source>带单位的算式</source>
            <translation>Formula with units</translation>
        </message>
        <message>
            <source>函数 sqrt 和 abs</source>
            <translation>Functions sqrt and abs</translation>
        </message>
        <message>
            <source>sin cos tan，角度后写 d</source>
            <translation>sin cos tan, with d after angles</translation>
        </message>
        <message>
            <source>圆周率</source>
            <translation>The number pi</translation>
        </message>
        <message>
            <source>角度：d、deg 或 °</source>
            <translation>Angle: d, deg or °</translation>
        </message>
        <message>
            <source>asin acos atan 得出角度</source>
            <translation>asin acos atan give an angle</translation>
        </message>
        <message>
            <source>一千还是一？</source>
            <translation>One thousand or one?</translation>
        </message>
        <message>
            <source>度还是弧度？写 sin(30d)</source>
            <translation>Degrees or radians? Write sin(30d)</translation>
        </message>
        <message>
            <source>5 的单位是什么？</source>
            <translation>What is the unit of 5?</translation>
        </message>
        <message>
            <source>6 的单位是什么？</source>
            <translation>What is the unit of 6?</translation>
        </message>
        <message>
            <source>请用括号</source>
            <translation>Use brackets</translation>
        </message>
        <message>
            <source>缺少运算符</source>
            <translation>The operator is missing</translation>
        </message>
        <message>
            <source>单位用小写</source>
            <translation>Units are in lower case</translation>
        </message>
        <message>
            <source>长度不能用度</source>
            <translation>A length has no degrees</translation>
        </message>
        <message>
            <source>日志未保存</source>
            <translation>Journal not saved</translation>
        </message>
        <message>
            <source>日志文件无法写入，所做的操作没有保存</source>
            <translation>The journal cannot be written: what you do is not saved</translation>
        </message>
        <message>
            <source>日志文件又可写入，缺少的记录已补上</source>
            <translation>The journal can be written again; the missing records were added</translation>
        </message>
        <message>
            <source>日志文件无法写入，从现在起所做的操作没有保存</source>
            <translation>The journal cannot be written: from now on what you do is not saved</translation>
        </message>
        <message>
            <source>文件不存在。</source>
            <translation>The file does not exist.</translation>
        </message>
        <message>
            <source>文件太大。</source>
            <translation>The file is too large.</translation>
        </message>
        <message>
            <source>无法读取文件。</source>
            <translation>The file cannot be read.</translation>
        </message>
        <message>
            <source>实线</source>
            <translation>Solid</translation>
        </message>
        <message>
            <source>虚线</source>
            <translation>Dashed</translation>
        </message>
        <message>
            <source>点线</source>
            <translation>Dotted</translation>
        </message>
        <message>
            <source>点画线</source>
            <translation>Dash-dot</translation>
        </message>
        <message>
            <source>默认</source>
            <translation>Default</translation>
        </message>
        <message>
            <source>红色</source>
            <translation>Red</translation>
        </message>
        <message>
            <source>橙色</source>
            <translation>Orange</translation>
        </message>
        <message>
            <source>绿色</source>
            <translation>Green</translation>
        </message>
        <message>
            <source>蓝色</source>
            <translation>Blue</translation>
        </message>
        <message>
            <source>洋红</source>
            <translation>Magenta</translation>
        </message>
        <message>
            <source>灰色</source>
            <translation>Grey</translation>
        </message>
        <message>
            <source>直线</source>
            <translation>Line</translation>
        </message>
        <message>
            <source>圆</source>
            <translation>Circle</translation>
        </message>
        <message>
            <source>圆弧</source>
            <translation>Arc</translation>
        </message>
        <message>
            <source>矩形</source>
            <translation>Rectangle</translation>
        </message>
        <message>
            <source>长度</source>
            <translation>Length</translation>
        </message>
        <message>
            <source>角度</source>
            <translation>Angle</translation>
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
            <translation>End X</translation>
        </message>
        <message>
            <source>端点 Y</source>
            <translation>End Y</translation>
        </message>
        <message>
            <source>圆心 X</source>
            <translation>Centre X</translation>
        </message>
        <message>
            <source>圆心 Y</source>
            <translation>Centre Y</translation>
        </message>
        <message>
            <source>角点 X</source>
            <translation>Corner X</translation>
        </message>
        <message>
            <source>角点 Y</source>
            <translation>Corner Y</translation>
        </message>
        <message>
            <source>宽度</source>
            <translation>Width</translation>
        </message>
        <message>
            <source>高度</source>
            <translation>Height</translation>
        </message>
        <message>
            <source>未命名</source>
            <translation>Untitled</translation>
        </message>
        <message>
            <source>线条特性</source>
            <translation>Pen</translation>
        </message>
        <message>
            <source>新建图层</source>
            <translation>New layer</translation>
        </message>
        <message>
            <source>修改图层</source>
            <translation>Change layer</translation>
        </message>
        <message>
            <source>删除图层</source>
            <translation>Remove layer</translation>
        </message>
        <message>
            <source>图名</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>修改</source>
            <translation>Change</translation>
        </message>
        <message>
            <source>删除</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>SVG 矢量图</source>
            <translation>SVG graphics</translation>
        </message>
        <message>
            <source>PDF 文档</source>
            <translation>PDF document</translation>
        </message>
        <message>
            <source>PNG 图片</source>
            <translation>PNG picture</translation>
        </message>
        <message>
            <source>DXF 图形</source>
            <translation>DXF drawing</translation>
        </message>
        <message>
            <source>不支持</source>
            <translation>not supported</translation>
        </message>
        <message>
            <source>在图纸空间</source>
            <translation>in paper space</translation>
        </message>
        <message>
            <source>不在绘图平面内</source>
            <translation>not in the drawing plane</translation>
        </message>
        <message>
            <source>过小或过大</source>
            <translation>too small or too large</translation>
        </message>
        <message>
            <source>网格或样条</source>
            <translation>mesh or spline</translation>
        </message>
        <message>
            <source>颜色</source>
            <translation>Colour</translation>
        </message>
        <message>
            <source>图层颜色</source>
            <translation>Layer colour</translation>
        </message>
        <message>
            <source>线型</source>
            <translation>Style</translation>
        </message>
        <message>
            <source>线宽</source>
            <translation>Width</translation>
        </message>
        <message>
            <source>高度（已投影到绘图平面）</source>
            <translation>Height (projected onto the drawing plane)</translation>
        </message>
        <message numerus="yes">
            <source>未导入 %n 个 %1：%2</source>
            <translation>
                <numerusform>%n %1 not imported: %2</numerusform>
                <numerusform>%n %1 not imported: %2</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n 处%1取最接近的值</source>
            <translation>
                <numerusform>%1: nearest value taken in %n place</numerusform>
                <numerusform>%1: nearest value taken in %n places</numerusform>
            </translation>
        </message>
        <message>
            <source>文件不完整，只读到中断处</source>
            <translation>The file is incomplete; it was read up to where it breaks off</translation>
        </message>
        <message>
            <source>导出图纸</source>
            <translation>Export drawing</translation>
        </message>
        <message>
            <source>打印到文件</source>
            <translation>Print to file</translation>
        </message>
        <message>
            <source>PDF 文档 (*.pdf)</source>
            <translation>PDF documents (*.pdf)</translation>
        </message>
        <message>
            <source>导入</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>导入：将 DXF 文件的图元加入图纸</source>
            <translation>Import: add the entities of a DXF file to the drawing</translation>
        </message>
        <message>
            <source>输出</source>
            <translation>Output</translation>
        </message>
        <message>
            <source>导入图元</source>
            <translation>Import entities</translation>
        </message>
        <message>
            <source>未导入 %1：%2</source>
            <translation>%1 not imported: %2</translation>
        </message>
        <message>
            <source>未导入 %1</source>
            <translation>%1 not imported</translation>
        </message>
        <message>
            <source>未导入：日志旁无法保存导入的内容</source>
            <translation>Not imported: the content cannot be kept beside the journal</translation>
        </message>
        <message>
            <source>%1：%2</source>
            <translation>%1: %2</translation>
        </message>
        <message numerus="yes">
            <source>已导入 %n 个图元</source>
            <translation>
                <numerusform>%n entity imported</numerusform>
                <numerusform>%n entities imported</numerusform>
            </translation>
        </message>
        <message>
            <source>DXF 图形 (*.dxf *.DXF)</source>
            <translation>DXF drawings (*.dxf *.DXF)</translation>
        </message>
        <message>
            <source>%1 没有注明单位。长度单位是：</source>
            <translation>%1 names no unit. Its lengths are in:</translation>
        </message>
        <message>
            <source>%1：%2，%3。</source>
            <translation>%1: %2, %3.</translation>
        </message>
        <message numerus="yes">
            <source>另有 %n 项说明</source>
            <translation>
                <numerusform>%n remark</numerusform>
                <numerusform>%n remarks</numerusform>
            </translation>
        </message>
        <message>
            <source>毫米</source>
            <translation>Millimetres</translation>
        </message>
        <message>
            <source>厘米</source>
            <translation>Centimetres</translation>
        </message>
        <message>
            <source>米</source>
            <translation>Metres</translation>
        </message>
        <message>
            <source>英寸</source>
            <translation>Inches</translation>
        </message>
        <message>
            <source>英尺</source>
            <translation>Feet</translation>
        </message>
        <message>
            <source>导出</source>
            <translation>Export</translation>
        </message>
        <message>
            <source>导出：将图纸写成 SVG、PDF、PNG 或 DXF 文件</source>
            <translation>Export: write the drawing as an SVG, PDF, PNG or DXF file</translation>
        </message>
        <message>
            <source>打印</source>
            <translation>Print</translation>
        </message>
        <message>
            <source>打印：选择比例、纸张和打印机，并预览</source>
            <translation>Print: choose scale, paper and printer, with a preview</translation>
        </message>
        <message>
            <source>打印图纸</source>
            <translation>Print drawing</translation>
        </message>
        <message>
            <source>无法导出 %1：不支持此格式</source>
            <translation>Cannot export %1: format not supported</translation>
        </message>
        <message>
            <source>已导出 %1</source>
            <translation>%1 exported</translation>
        </message>
        <message>
            <source>未导出 %1</source>
            <translation>%1 not exported</translation>
        </message>
        <message>
            <source>已打印</source>
            <translation>Printed</translation>
        </message>
        <message>
            <source>已打印到 %1</source>
            <translation>Printed to %1</translation>
        </message>
        <message>
            <source>未打印</source>
            <translation>Not printed</translation>
        </message>
        <message>
            <source>已取消</source>
            <translation>Cancelled</translation>
        </message>
        <message>
            <source>图纸中没有可见的图元</source>
            <translation>The drawing has no visible entities</translation>
        </message>
        <message>
            <source>图纸太大，此格式无法按 1:1 输出</source>
            <translation>The drawing is too large for this format at 1:1</translation>
        </message>
        <message>
            <source>内存不足</source>
            <translation>Not enough memory</translation>
        </message>
        <message>
            <source>无法读取文件</source>
            <translation>The file cannot be read</translation>
        </message>
        <message>
            <source>无法写入文件</source>
            <translation>The file cannot be written</translation>
        </message>
        <message>
            <source>找不到 vesk-dxf 程序</source>
            <translation>The program vesk-dxf is missing</translation>
        </message>
        <message>
            <source>vesk-dxf 程序出错</source>
            <translation>The program vesk-dxf failed</translation>
        </message>
        <message>
            <source>图元过多或内存不足</source>
            <translation>Too many entities, or not enough memory</translation>
        </message>
        <message>
            <source>不是文本格式的 DXF 文件，或已损坏</source>
            <translation>Not a text DXF file, or damaged</translation>
        </message>
        <message>
            <source>文件没有单位</source>
            <translation>The file names no unit</translation>
        </message>
        <message>
            <source>图纸很大，预览只画出一部分；打印是完整的</source>
            <translation>The drawing is large: the preview shows only a part; the print is complete</translation>
        </message>
        <message>
            <source>纵向</source>
            <translation>Portrait</translation>
        </message>
        <message>
            <source>横向</source>
            <translation>Landscape</translation>
        </message>
        <message>
            <source>布满</source>
            <translation>Fit</translation>
        </message>
        <message>
            <source>PDF 文件</source>
            <translation>PDF file</translation>
        </message>
        <message>
            <source>打印机(&amp;P)</source>
            <translation>&amp;Printer</translation>
        </message>
        <message>
            <source>纸张(&amp;S)</source>
            <translation>Paper &amp;size</translation>
        </message>
        <message>
            <source>方向(&amp;O)</source>
            <translation>&amp;Orientation</translation>
        </message>
        <message>
            <source>比例(&amp;C)</source>
            <translation>S&amp;cale</translation>
        </message>
        <message>
            <source>比例应写成 1:50 或 2:1</source>
            <translation>Write the scale as 1:50 or 2:1</translation>
        </message>
        <message>
            <source>比例 %1</source>
            <translation>Scale %1</translation>
        </message>
        <message>
            <source>图形超出纸面，超出部分不会打印</source>
            <translation>The drawing is larger than the paper; what lies outside is not printed</translation>
        </message>
        <message>
            <source>编号</source>
            <translation>No.</translation>
        </message>
        <message>
            <source>类型</source>
            <translation>Kind</translation>
        </message>
        <message>
            <source>尺寸</source>
            <translation>Size</translation>
        </message>
        <message>
            <source>，</source>
            <translation>, </translation>
        </message>
        <message>
            <source>操作没有存入日志文件</source>
            <translation>What you do is not saved in a journal file</translation>
        </message>
        <message>
            <source>复制记录</source>
            <translation>Copy records</translation>
        </message>
        <message>
            <source>新图元画在当前图层上；单击设为当前</source>
            <translation>New entities go on the current layer; click to make this one current</translation>
        </message>
        <message>
            <source>名称</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>双击改名</source>
            <translation>Double-click to rename</translation>
        </message>
        <message>
            <source>颜色为默认的图元所用的颜色；单击选择</source>
            <translation>Colour of the entities whose colour is the default; click to choose</translation>
        </message>
        <message>
            <source>可见</source>
            <translation>On</translation>
        </message>
        <message>
            <source>不可见的图层不显示，也不能选取和捕捉</source>
            <translation>An invisible layer is not shown, and cannot be picked or snapped to</translation>
        </message>
        <message>
            <source>锁定</source>
            <translation>Lock</translation>
        </message>
        <message>
            <source>锁定的图层可以捕捉，但不能选取和修改</source>
            <translation>A locked layer can be snapped to, but not picked or changed</translation>
        </message>
        <message>
            <source>图层名不能为空</source>
            <translation>A layer needs a name</translation>
        </message>
        <message>
            <source>已有名为“%1”的图层</source>
            <translation>There is a layer named “%1” already</translation>
        </message>
        <message>
            <source>图层 %1</source>
            <translation>Layer %1</translation>
        </message>
        <message>
            <source>删除</source>
            <comment>layer</comment>
            <translation>Remove</translation>
        </message>
        <message>
            <source>删除所选图层；基础图层和有图元的图层不能删除</source>
            <translation>Remove the selected layer; the first one, and those with entities, stay</translation>
        </message>
        <message>
            <source>设为当前</source>
            <translation>Make current</translation>
        </message>
        <message>
            <source>新图元画在所选图层上</source>
            <translation>New entities go on the selected layer</translation>
        </message>
        <message>
            <source>图元</source>
            <translation>Entities</translation>
        </message>
        <message>
            <source>图层</source>
            <translation>Layers</translation>
        </message>
        <message>
            <source>日志</source>
            <translation>Journal</translation>
        </message>
        <message>
            <source>检查器</source>
            <translation>Inspector</translation>
        </message>
        <message>
            <source>特性</source>
            <translation>Properties</translation>
        </message>
        <message>
            <source>隐藏全部面板</source>
            <translation>Hide all panes</translation>
        </message>
        <message>
            <source>隐藏全部面板；再按一次恢复原样</source>
            <translation>Hide all panes; once more shows them as they were</translation>
        </message>
        <message>
            <source>面板</source>
            <translation>Panes</translation>
        </message>
        <message>
            <source>恢复默认布局</source>
            <translation>Default layout</translation>
        </message>
        <message>
            <source>恢复面板的默认布局</source>
            <translation>Restore the default layout of the panes</translation>
        </message>
        <message>
            <source>显示全部面板</source>
            <translation>Show all panes</translation>
        </message>
        <message>
            <source>显示或隐藏此面板</source>
            <translation>Show or hide this pane</translation>
        </message>
        <message>
            <source>未选图元</source>
            <translation>Nothing selected</translation>
        </message>
        <message numerus="yes">
            <source>已选 %n 个图元</source>
            <translation>
                <numerusform>%n entity selected</numerusform>
                <numerusform>%n entities selected</numerusform>
            </translation>
        </message>
        <message>
            <source>以此值无法绘制图元</source>
            <translation>The entity cannot be drawn with this value</translation>
        </message>
        <message>
            <source>命令 %1</source>
            <translation>Command %1</translation>
        </message>
        <message>
            <source>点 %1, %2</source>
            <translation>Point %1, %2</translation>
        </message>
        <message>
            <source>图元 #%1</source>
            <translation>Entity #%1</translation>
        </message>
        <message>
            <source>取消选择</source>
            <translation>Deselect</translation>
        </message>
        <message numerus="yes">
            <source>选择 %n 个图元</source>
            <translation>
                <numerusform>Select %n entity</numerusform>
                <numerusform>Select %n entities</numerusform>
            </translation>
        </message>
        <message>
            <source>选择 %1</source>
            <translation>Select %1</translation>
        </message>
        <message>
            <source>%1 “%2” = %3</source>
            <translation>%1 “%2” = %3</translation>
        </message>
        <message>
            <source>撤销 #%1</source>
            <translation>Undo #%1</translation>
        </message>
        <message>
            <source>重做 #%1</source>
            <translation>Redo #%1</translation>
        </message>
        <message>
            <source>图纸 %1</source>
            <translation>Drawing %1</translation>
        </message>
        <message>
            <source>程序结束</source>
            <translation>Program ended</translation>
        </message>
        <message>
            <source>日志 %1  %2</source>
            <translation>Journal %1  %2</translation>
        </message>
        <message>
            <source>未执行</source>
            <translation>Not done</translation>
        </message>
        <message>
            <source>结束</source>
            <translation>End</translation>
        </message>
        <message>
            <source>恢复内容</source>
            <translation>Recover content</translation>
        </message>
        <message>
            <source>继续(&amp;R)</source>
            <translation>&amp;Resume</translation>
        </message>
        <message>
            <source>恢复这些操作并继续绘图</source>
            <translation>Recover this work and go on drawing</translation>
        </message>
        <message>
            <source>查看(&amp;K)</source>
            <translation>Loo&amp;k</translation>
        </message>
        <message>
            <source>在另一窗口中查看，不作改动</source>
            <translation>Look at it in another window, changing nothing</translation>
        </message>
        <message>
            <source>忽略(&amp;I)</source>
            <translation>&amp;Ignore</translation>
        </message>
        <message>
            <source>不再提示；日志仍保留一段时间</source>
            <translation>Do not offer it again; the journal is kept for a while</translation>
        </message>
        <message>
            <source>以后(&amp;L)</source>
            <translation>&amp;Later</translation>
        </message>
        <message>
            <source>下次启动时再提示</source>
            <translation>Offer it again at the next start</translation>
        </message>
        <message numerus="yes">
            <source>%n 步</source>
            <translation>
                <numerusform>%n step</numerusform>
                <numerusform>%n steps</numerusform>
            </translation>
        </message>
        <message>
            <source>上次未正常结束：%1</source>
            <translation>Did not end properly last time: %1</translation>
        </message>
        <message>
            <source>（日志有损坏，可恢复损坏之前的部分）</source>
            <translation> (the journal is damaged; what precedes the damage can be recovered)</translation>
        </message>
        <message numerus="yes">
            <source>；另有 %n 个</source>
            <translation>
                <numerusform>; %n more</numerusform>
                <numerusform>; %n more</numerusform>
            </translation>
        </message>
        <message>
            <source>上次的操作已在另一窗口中恢复</source>
            <translation>This work has been recovered in another window</translation>
        </message>
        <message>
            <source>比例</source>
            <translation>Scale</translation>
        </message>
        <message>
            <source>缩放</source>
            <translation>Zoom</translation>
        </message>
        <message>
            <source>缩放到全部图元；箭头打开更多缩放命令</source>
            <translation>Zoom to all entities; the arrow opens more zoom commands</translation>
        </message>
        <message>
            <source>显示全部面板；箭头逐个显示或隐藏</source>
            <translation>Show all panes; the arrow shows or hides them one by one</translation>
        </message>
        <message>
            <source>直线：单击或键入长度和角度，逐段绘制</source>
            <translation>Line: click, or type length and angle, segment by segment</translation>
        </message>
        <message>
            <source>矩形：单击两个对角点，或键入宽度和高度</source>
            <translation>Rectangle: click two opposite corners, or type width and height</translation>
        </message>
        <message>
            <source>圆：单击圆心和圆上一点，或键入半径</source>
            <translation>Circle: click the centre and a point on it, or type the radius</translation>
        </message>
        <message>
            <source>三点圆弧</source>
            <translation>3-point arc</translation>
        </message>
        <message>
            <source>三点圆弧：单击起点、端点和弧上一点，或键入半径</source>
            <translation>3-point arc: click start, end and a point on it, or type the radius</translation>
        </message>
        <message>
            <source>圆心圆弧</source>
            <translation>Centre arc</translation>
        </message>
        <message>
            <source>圆心圆弧：单击圆心、起点和端点，或键入圆心角</source>
            <translation>Centre arc: click centre, start and end, or type the central angle</translation>
        </message>
        <message>
            <source>绘图</source>
            <translation>Draw</translation>
        </message>
        <message>
            <source>设置特性</source>
            <translation>Set property</translation>
        </message>
        <message>
            <source>删除：单击要删除的图元</source>
            <translation>Delete: click the entities to delete</translation>
        </message>
        <message>
            <source>编辑</source>
            <translation>Edit</translation>
        </message>
        <message>
            <source>旋转</source>
            <translation>Rotate</translation>
        </message>
        <message>
            <source>旋转：将所选图元绕一点转到另一方向，或键入角度</source>
            <translation>Rotate: turn the selected entities about a point, or type the angle</translation>
        </message>
        <message>
            <source>按键提示</source>
            <translation>Key hints</translation>
        </message>
        <message>
            <source>键入数值时显示或隐藏按键提示</source>
            <translation>Show or hide the keys while a value is typed</translation>
        </message>
        <message>
            <source>视图</source>
            <translation>View</translation>
        </message>
        <message>
            <source>按 %1 显示</source>
            <translation>Show at %1</translation>
        </message>
        <message>
            <source>全图</source>
            <translation>Zoom all</translation>
        </message>
        <message>
            <source>全图：缩放到全部图元</source>
            <translation>Zoom all: zoom to all entities</translation>
        </message>
        <message>
            <source>窗口</source>
            <translation>Window</translation>
        </message>
        <message>
            <source>缩放到两个角点之间</source>
            <translation>Zoom to what is between two corners</translation>
        </message>
        <message>
            <source>放大</source>
            <translation>Zoom in</translation>
        </message>
        <message>
            <source>放大一倍</source>
            <translation>Twice as large</translation>
        </message>
        <message>
            <source>缩小</source>
            <translation>Zoom out</translation>
        </message>
        <message>
            <source>缩小一半</source>
            <translation>Half as large</translation>
        </message>
        <message>
            <source>重复“%1”</source>
            <translation>Repeat “%1”</translation>
        </message>
        <message>
            <source>图元：%1</source>
            <translation>Entities: %1</translation>
        </message>
        <message>
            <source>移动</source>
            <translation>Move</translation>
        </message>
        <message>
            <source>移动：将所选图元从基点移到目标点，或键入距离和角度</source>
            <translation>Move: move the selected entities from a base point to a target, or type distance and angle</translation>
        </message>
        <message>
            <source>复制到</source>
            <translation>Copy to</translation>
        </message>
        <message>
            <source>复制到：将所选图元从基点复制到各目标点，或键入距离和角度</source>
            <translation>Copy to: copy the selected entities from a base point to targets, or type distance and angle</translation>
        </message>
        <message>
            <source>镜像</source>
            <translation>Mirror</translation>
        </message>
        <message>
            <source>镜像：按两点所定的轴复制所选图元，原图元保留</source>
            <translation>Mirror: copy the selected entities across the axis through two points; the originals stay</translation>
        </message>
        <message>
            <source>偏移</source>
            <translation>Offset</translation>
        </message>
        <message>
            <source>偏移：单击图元，再单击一侧或键入距离，画出与其平行的图元</source>
            <translation>Offset: click an entity, then a side, or type the distance, to draw a parallel</translation>
        </message>
        <message>
            <source>删除所选</source>
            <translation>Delete selected</translation>
        </message>
        <message>
            <source>删除所选图元</source>
            <translation>Delete the selected entities</translation>
        </message>
        <message>
            <source>全选</source>
            <translation>Select all</translation>
        </message>
        <message>
            <source>选择全部可选的图元</source>
            <translation>Select all entities that can be selected</translation>
        </message>
        <message>
            <source>选择</source>
            <translation>Selection</translation>
        </message>
        <message>
            <source>设置图层</source>
            <translation>Set layer</translation>
        </message>
        <message>
            <source>图层</source>
            <comment>of an entity</comment>
            <translation>Layer</translation>
        </message>
        <message>
            <source>捕捉光标附近的%1</source>
            <translation>Snap near the cursor: %1</translation>
        </message>
        <message>
            <source>捕捉</source>
            <translation>Snap</translation>
        </message>
        <message>
            <source>撤销</source>
            <translation>Undo</translation>
        </message>
        <message>
            <source>撤销上一步</source>
            <translation>Undo the last step</translation>
        </message>
        <message>
            <source>重做</source>
            <translation>Redo</translation>
        </message>
        <message>
            <source>重做上一步</source>
            <translation>Redo the last step</translation>
        </message>
        <message>
            <source>长度以此单位显示和键入；图形不变</source>
            <translation>Lengths are shown and typed in this unit; the drawing stays as it is</translation>
        </message>
        <message>
            <source>单位</source>
            <translation>Unit</translation>
        </message>
        <message>
            <source>%1（查看）</source>
            <translation>%1 (looking only)</translation>
        </message>
        <message>
            <source>原日志未保存，已移入恢复文件夹</source>
            <translation>Unsaved journal moved</translation>
        </message>
        <message>
            <source>警告未记录</source>
            <translation>Warnings not logged</translation>
        </message>
        <message>
            <source>无法写入警告日志 %1</source>
            <translation>Cannot write the log of warnings %1</translation>
        </message>
        <message>
            <source>面板布局来自更新的版本，已用默认布局</source>
            <translation>The layout of the panes is from a newer version; the default is used</translation>
        </message>
        <message>
            <source>面板布局文件已损坏，已用默认布局</source>
            <translation>The layout file of the panes is damaged; the default is used</translation>
        </message>
        <message>
            <source>面板布局不会保存</source>
            <translation>Layout will not be saved</translation>
        </message>
        <message>
            <source>无法写入 %1</source>
            <translation>Cannot write %1</translation>
        </message>
        <message>
            <source>日志文件无法写入，现有的图纸会丢失，不能继续上次的操作</source>
            <translation>The journal cannot be written and the present drawing would be lost: the work cannot be resumed</translation>
        </message>
        <message>
            <source>第 %1 条记录无法重做，其后的操作没有恢复</source>
            <translation>Record %1 cannot be replayed; what follows was not recovered</translation>
        </message>
        <message>
            <source>仅供查看</source>
            <translation>Looking only</translation>
        </message>
        <message>
            <source>在此窗口中所做的操作不会保存</source>
            <translation>What you do in this window is not saved</translation>
        </message>
        <message>
            <source>第 %1 条记录无法重做，已恢复 %2 条</source>
            <translation>Record %1 cannot be replayed; %2 were recovered</translation>
        </message>
        <message>
            <source>（%1）</source>
            <translation> (%1)</translation>
        </message>
        <message>
            <source>日志改存于另一文件</source>
            <translation>Journal is another file</translation>
        </message>
        <message>
            <source>中文</source>
            <translation>English</translation>
        </message>
        <message>
            <source>与桌面相同</source>
            <translation>Same as the desktop</translation>
        </message>
        <message>
            <source>浅色</source>
            <translation>Light</translation>
        </message>
        <message>
            <source>深色</source>
            <translation>Dark</translation>
        </message>
        <message>
            <source>高对比度</source>
            <translation>High contrast</translation>
        </message>
        <message>
            <source>键入空格</source>
            <translation>Types a space</translation>
        </message>
        <message>
            <source>关闭</source>
            <comment>off</comment>
            <translation>Off</translation>
        </message>
        <message>
            <source> 分钟</source>
            <translation> minutes</translation>
        </message>
        <message>
            <source>设置</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>语言(&amp;L)</source>
            <translation>&amp;Language</translation>
        </message>
        <message>
            <source>颜色(&amp;C)</source>
            <translation>&amp;Colours</translation>
        </message>
        <message>
            <source>长度单位(&amp;U)</source>
            <translation>&amp;Unit of lengths</translation>
        </message>
        <message>
            <source>键入数值时，空格键(&amp;S)</source>
            <translation>&amp;Space, while a value is typed</translation>
        </message>
        <message>
            <source>日志文件夹(&amp;J)</source>
            <translation>&amp;Journal folder</translation>
        </message>
        <message>
            <source>自动保存间隔(&amp;A)</source>
            <translation>&amp;Automatic save every</translation>
        </message>
        <message>
            <source>日志文件夹不可写</source>
            <translation>The journal folder is not writable</translation>
        </message>
        <message>
            <source>日志文件夹不存在</source>
            <translation>The journal folder does not exist</translation>
        </message>
        <message>
            <source>留空则用 %1</source>
            <translation>If empty: %1</translation>
        </message>
        <message>
            <source>浏览…</source>
            <translation>Browse…</translation>
        </message>
        <message>
            <source>恢复默认值</source>
            <translation>Restore defaults</translation>
        </message>
        <message>
            <source>日志文件夹</source>
            <translation>Journal folder</translation>
        </message>
        <message>
            <source>无法保存设置：%1</source>
            <translation>Cannot save the settings: %1</translation>
        </message>
        <message>
            <source>折叠功能区</source>
            <translation>Fold ribbon</translation>
        </message>
        <message>
            <source>只显示功能区的选项卡，或恢复显示</source>
            <translation>Show only the tabs of the ribbon, or all of it again</translation>
        </message>
        <message>
            <source>语言、颜色、单位、捕捉、按键和日志</source>
            <translation>Language, colours, unit, snaps, keys and journal</translation>
        </message>
        <message>
            <source>开始</source>
            <translation>Start</translation>
        </message>
        <message>
            <source>草图</source>
            <translation>Sketch</translation>
        </message>
        <message>
            <source>光标处的图元</source>
            <translation>Entity at the cursor</translation>
        </message>
        <message>
            <source>线条</source>
            <translation>Pen</translation>
        </message>
        <message>
            <source>绘图设置</source>
            <translation>Drafting</translation>
        </message>
        <message>
            <source>正在进行的操作的进度；Esc 取消</source>
            <translation>Progress of what is being done; Esc cancels</translation>
        </message>
        <message>
            <source>不保存</source>
            <translation>Discard</translation>
        </message>
        <message>
            <source>是(&amp;Y)</source>
            <translation>&amp;Yes</translation>
        </message>
        <message>
            <source>否(&amp;N)</source>
            <translation>&amp;No</translation>
        </message>
        <message>
            <source>中止</source>
            <translation>Abort</translation>
        </message>
        <message>
            <source>重试</source>
            <translation>Retry</translation>
        </message>
        <message>
            <source>忽略</source>
            <translation>Ignore</translation>
        </message>
        <message>
            <source>显示详细信息…</source>
            <translation>Show details…</translation>
        </message>
        <message>
            <source>隐藏详细信息…</source>
            <translation>Hide details…</translation>
        </message>
        <message>
            <source>撤销(&amp;U)</source>
            <translation>&amp;Undo</translation>
        </message>
        <message>
            <source>重做(&amp;R)</source>
            <translation>&amp;Redo</translation>
        </message>
        <message>
            <source>剪切(&amp;T)</source>
            <translation>Cu&amp;t</translation>
        </message>
        <message>
            <source>复制(&amp;C)</source>
            <translation>&amp;Copy</translation>
        </message>
        <message>
            <source>复制链接地址(&amp;L)</source>
            <translation>Copy &amp;link location</translation>
        </message>
        <message>
            <source>粘贴(&amp;P)</source>
            <translation>&amp;Paste</translation>
        </message>
        <message>
            <source>全选(&amp;S)</source>
            <translation>&amp;Select all</translation>
        </message>
        <message>
            <source>增大(&amp;U)</source>
            <translation>&amp;Step up</translation>
        </message>
        <message>
            <source>减小(&amp;D)</source>
            <translation>Step &amp;down</translation>
        </message>
        <message>
            <source>浮动</source>
            <translation>Float</translation>
        </message>
        <message>
            <source>浮动，或放回窗口</source>
            <translation>Float, or put back into the window</translation>
        </message>
        <message>
            <source>关闭面板</source>
            <translation>Close the pane</translation>
        </message>
        <message>
            <source>文件夹：</source>
            <translation>Folder:</translation>
        </message>
        <message>
            <source>文件名(&amp;N)：</source>
            <translation>File &amp;name:</translation>
        </message>
        <message>
            <source>类型：</source>
            <translation>Type:</translation>
        </message>
        <message>
            <source>打开(&amp;O)</source>
            <translation>&amp;Open</translation>
        </message>
        <message>
            <source>选择(&amp;C)</source>
            <translation>&amp;Choose</translation>
        </message>
        <message>
            <source>选择文件夹</source>
            <translation>Choose folder</translation>
        </message>
        <message>
            <source>文件夹</source>
            <translation>Folder</translation>
        </message>
        <message>
            <source>后退</source>
            <translation>Back</translation>
        </message>
        <message>
            <source>前进</source>
            <translation>Forward</translation>
        </message>
        <message>
            <source>上一级</source>
            <translation>Parent folder</translation>
        </message>
        <message>
            <source>转到上一级文件夹</source>
            <translation>Go to the parent folder</translation>
        </message>
        <message>
            <source>新建文件夹</source>
            <translation>New folder</translation>
        </message>
        <message>
            <source>新建文件夹(&amp;N)</source>
            <translation>&amp;New folder</translation>
        </message>
        <message>
            <source>列表</source>
            <translation>List</translation>
        </message>
        <message>
            <source>显示为列表</source>
            <translation>Show as a list</translation>
        </message>
        <message>
            <source>详细信息</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>显示详细信息</source>
            <translation>Show details</translation>
        </message>
        <message>
            <source>位置</source>
            <translation>Places</translation>
        </message>
        <message>
            <source>常用位置</source>
            <translation>List of places</translation>
        </message>
        <message>
            <source>重命名(&amp;R)</source>
            <translation>&amp;Rename</translation>
        </message>
        <message>
            <source>删除(&amp;D)</source>
            <translation>&amp;Delete</translation>
        </message>
        <message>
            <source>显示隐藏文件(&amp;H)</source>
            <translation>Show &amp;hidden files</translation>
        </message>
        <message>
            <source>显示 </source>
            <translation>Show </translation>
        </message>
        <message>
            <source>移除</source>
            <translation>Remove</translation>
        </message>
        <message>
            <source>最近的位置</source>
            <translation>Recent places</translation>
        </message>
        <message>
            <source>大小</source>
            <translation>Size</translation>
        </message>
        <message>
            <source>修改时间</source>
            <translation>Modified</translation>
        </message>
        <message>
            <source>计算机</source>
            <translation>Computer</translation>
        </message>
        <message>
            <source>驱动器</source>
            <translation>Drive</translation>
        </message>
        <message>
            <source>%1 文件</source>
            <translation>%1 file</translation>
        </message>
        <message>
            <source>字节</source>
            <translation>bytes</translation>
        </message>
        <message>
            <source>“%1”已经存在。
要替换它吗？</source>
            <translation>“%1” already exists.
Replace it?</translation>
        </message>
        <message>
            <source>%1
找不到该文件。
请检查文件名。</source>
            <translation>%1
File not found.
Check the name of the file.</translation>
        </message>
        <message>
            <source>%1
找不到该文件夹。
请检查文件夹名。</source>
            <translation>%1
Folder not found.
Check the name of the folder.</translation>
        </message>
        <message>
            <source>“%1”有写保护。
仍要删除吗？</source>
            <translation>“%1” is write-protected.
Delete it all the same?</translation>
        </message>
        <message>
            <source>要删除“%1”吗？</source>
            <translation>Delete “%1”?</translation>
        </message>
        <message>
            <source>无法删除文件夹。</source>
            <translation>The folder cannot be deleted.</translation>
        </message>
        <message>
            <source>文件名无效</source>
            <translation>Invalid file name</translation>
        </message>
        <message>
            <source>&lt;b&gt;不能使用名称“%1”。&lt;/b&gt;&lt;p&gt;请换一个较短或不含标点的名称。</source>
            <translation>&lt;b&gt;The name “%1” cannot be used.&lt;/b&gt;&lt;p&gt;Use a shorter one, or one without punctuation.</translation>
        </message>
        <message>
            <source>圆心圆弧：单击圆心，或键入坐标；Esc 结束</source>
            <translation>Centre arc: click the centre or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>圆心圆弧：单击起点，或键入坐标；Esc 结束</source>
            <translation>Centre arc: click the start or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>圆心圆弧：单击端点，或键入圆心角（逆时针为正）；Esc 结束</source>
            <translation>Centre arc: click the end, or type the central angle (counter-clockwise positive); Esc ends</translation>
        </message>
        <message>
            <source>三点圆弧：单击起点，或键入坐标；Esc 结束</source>
            <translation>3-point arc: click the start or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>三点圆弧：单击端点，或键入坐标；Esc 结束</source>
            <translation>3-point arc: click the end or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>三点圆弧：单击弧上一点，或键入半径；Esc 结束</source>
            <translation>3-point arc: click a point on it, or type the radius; Esc ends</translation>
        </message>
        <message>
            <source>圆：单击圆上一点，或键入半径；Esc 结束</source>
            <translation>Circle: click a point on it, or type the radius; Esc ends</translation>
        </message>
        <message>
            <source>圆：单击圆心，或键入坐标；Esc 结束</source>
            <translation>Circle: click the centre or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>这个值在这里不起作用，请换一个</source>
            <translation>This value has no effect here; enter another</translation>
        </message>
        <message>
            <source>删除：单击要删除的图元；Esc 结束</source>
            <translation>Delete: click the entities to delete; Esc ends</translation>
        </message>
        <message>
            <source>直线：单击下一点，或键入长度（Tab 切换到角度）；Esc 结束</source>
            <translation>Line: click the next point, or type the length (Tab for the angle); Esc ends</translation>
        </message>
        <message>
            <source>直线：单击起点，或键入坐标；Esc 结束</source>
            <translation>Line: click the start or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>单击要镜像的图元</source>
            <translation>click the entities to mirror</translation>
        </message>
        <message>
            <source>单击镜像轴上的第一点，或再单击一并镜像的图元</source>
            <translation>click the first point of the axis, or more entities to mirror</translation>
        </message>
        <message>
            <source>单击镜像轴上的第一点</source>
            <translation>click the first point of the axis</translation>
        </message>
        <message>
            <source>单击镜像轴上的第二点，或键入距离（Tab 切换到角度）</source>
            <translation>click the second point of the axis, or type the distance (Tab for the angle)</translation>
        </message>
        <message>
            <source>单击要移动的图元</source>
            <translation>click the entities to move</translation>
        </message>
        <message>
            <source>单击基点，或再单击一并移动的图元</source>
            <translation>click the base point, or more entities to move</translation>
        </message>
        <message>
            <source>单击基点，或键入坐标</source>
            <translation>click the base point or type its coordinates</translation>
        </message>
        <message>
            <source>单击目标点，或键入距离（Tab 切换到角度）</source>
            <translation>click the target, or type the distance (Tab for the angle)</translation>
        </message>
        <message>
            <source>单击要复制的图元</source>
            <translation>click the entities to copy</translation>
        </message>
        <message>
            <source>单击基点，或再单击一并复制的图元</source>
            <translation>click the base point, or more entities to copy</translation>
        </message>
        <message>
            <source>偏移：单击偏移后通过的点，或键入距离（光标所在一侧）；Esc 结束</source>
            <translation>Offset: click a point of the parallel, or type the distance (on the side of the cursor); Esc ends</translation>
        </message>
        <message>
            <source>偏移：单击要偏移的图元；Esc 结束</source>
            <translation>Offset: click the entity to offset; Esc ends</translation>
        </message>
        <message>
            <source>偏移的方向由光标所在一侧决定</source>
            <translation>The side of the cursor decides where the parallel goes</translation>
        </message>
        <message>
            <source>矩形：单击对角点，或键入宽度（Tab 切换到高度）；Esc 结束</source>
            <translation>Rectangle: click the opposite corner, or type the width (Tab for the height); Esc ends</translation>
        </message>
        <message>
            <source>矩形：单击第一个角点，或键入坐标；Esc 结束</source>
            <translation>Rectangle: click the first corner or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>单击要旋转的图元</source>
            <translation>click the entities to rotate</translation>
        </message>
        <message>
            <source>单击旋转中心，或再单击一并旋转的图元</source>
            <translation>click the centre, or more entities to rotate</translation>
        </message>
        <message>
            <source>单击旋转中心，或键入坐标</source>
            <translation>click the centre or type its coordinates</translation>
        </message>
        <message>
            <source>单击目标方向上的一点，或键入角度（逆时针为正）</source>
            <translation>click a point in the new direction, or type the angle (counter-clockwise positive)</translation>
        </message>
        <message>
            <source>单击起始方向上的一点，或键入坐标</source>
            <translation>click a point in the present direction or type its coordinates</translation>
        </message>
        <message>
            <source>%1：%2；Esc 结束</source>
            <translation>%1: %2; Esc ends</translation>
        </message>
        <message>
            <source>窗口缩放：单击对角点，或键入坐标；Esc 结束</source>
            <translation>Zoom window: click the opposite corner or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>窗口缩放：单击第一个角点，或键入坐标；Esc 结束</source>
            <translation>Zoom window: click the first corner or type its coordinates; Esc ends</translation>
        </message>
        <message>
            <source>%1 #%2：%3</source>
            <translation>%1 #%2: %3</translation>
        </message>
        <message>
            <source>端点</source>
            <translation>Endpoint</translation>
        </message>
        <message>
            <source>中点</source>
            <translation>Midpoint</translation>
        </message>
        <message>
            <source>圆心</source>
            <translation>Centre</translation>
        </message>
        <message>
            <source>交点</source>
            <translation>Intersection</translation>
        </message>
        <message>
            <source>栅格</source>
            <translation>Grid</translation>
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
            <translation>Debug warning</translation>
        </message>
        <message>
            <source>用户名：</source>
            <translation>User:</translation>
        </message>
        <message>
            <source>密码：</source>
            <translation>Pass:</translation>
        </message>
        <message>
            <source>报告</source>
            <translation>Report</translation>
        </message>
        <message>
            <source>忽略一次</source>
            <translation>Ignore once</translation>
        </message>
        <message>
            <source>忽略所有</source>
            <translation>Ignore all</translation>
        </message>
        <message>
            <source>调试</source>
            <translation>Debug</translation>
        </message>
        <message>
            <source>信息</source>
            <translation>Message</translation>
        </message>
        <message>
            <source>文件：</source>
            <translation>File:</translation>
        </message>
        <message>
            <source>行号：</source>
            <translation>Line:</translation>
        </message>
        <message>
            <source>函数：</source>
            <translation>Func:</translation>
        </message>
        <message>
            <source>负责人：</source>
            <translation>Owner:</translation>
        </message>
        <message>
            <source>日期：</source>
            <translation>Date:</translation>
        </message>
    </context>
</TS>
