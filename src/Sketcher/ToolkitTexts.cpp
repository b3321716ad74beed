#include "ToolkitTexts.h"

#include <QCoreApplication>
#include <QHash>

namespace
{

/// By the toolkit's English texts. Where one occurs in several windows it means the same.
const QHash<QByteArray, QString>& Texts()
{
    static const QHash<QByteArray, QString> s_texts = {
        // Standard buttons
        {"OK", QStringLiteral("确定")},
        {"Cancel", QStringLiteral("取消")},
        {"Close", QStringLiteral("关闭")},
        {"Open", QStringLiteral("打开")},
        {"Save", QStringLiteral("保存")},
        {"Discard", QStringLiteral("不保存")},
        {"&Yes", QStringLiteral("是(&Y)")},
        {"&No", QStringLiteral("否(&N)")},
        {"Abort", QStringLiteral("中止")},
        {"Retry", QStringLiteral("重试")},
        {"Ignore", QStringLiteral("忽略")},
        {"Show Details...", QStringLiteral("显示详细信息…")},
        {"Hide Details...", QStringLiteral("隐藏详细信息…")},
        // Text fields
        {"&Undo", QStringLiteral("撤销(&U)")},
        {"&Redo", QStringLiteral("重做(&R)")},
        {"Cu&t", QStringLiteral("剪切(&T)")},
        {"&Copy", QStringLiteral("复制(&C)")},
        {"Copy &Link Location", QStringLiteral("复制链接地址(&L)")},
        {"&Paste", QStringLiteral("粘贴(&P)")},
        {"Delete", QStringLiteral("删除")},
        {"Select All", QStringLiteral("全选")},
        {"&Select All", QStringLiteral("全选(&S)")},
        {"&Step up", QStringLiteral("增大(&U)")},
        {"Step &down", QStringLiteral("减小(&D)")},
        // Panes
        {"Float", QStringLiteral("浮动")},
        {"Undocks and re-attaches the dock widget", QStringLiteral("浮动，或放回窗口")},
        {"Closes the dock widget", QStringLiteral("关闭面板")},
        // File dialogs: controls
        {"Look in:", QStringLiteral("文件夹：")},
        {"File &name:", QStringLiteral("文件名(&N)：")},
        {"Directory:", QStringLiteral("文件夹：")},
        {"Files of type:", QStringLiteral("类型：")},
        {"&Open", QStringLiteral("打开(&O)")},
        {"&Save", QStringLiteral("保存(&S)")},
        {"&Choose", QStringLiteral("选择(&C)")},
        {"Save As", QStringLiteral("另存为")},
        {"Find Directory", QStringLiteral("选择文件夹")},
        {"All Files (*)", QStringLiteral("所有文件 (*)")},
        {"Directories", QStringLiteral("文件夹")},
        {"Back", QStringLiteral("后退")},
        {"Go back", QStringLiteral("后退")},
        {"Forward", QStringLiteral("前进")},
        {"Go forward", QStringLiteral("前进")},
        {"Parent Directory", QStringLiteral("上一级")},
        {"Go to the parent directory", QStringLiteral("转到上一级文件夹")},
        {"Create New Folder", QStringLiteral("新建文件夹")},
        {"Create a New Folder", QStringLiteral("新建文件夹")},
        {"&New Folder", QStringLiteral("新建文件夹(&N)")},
        {"New Folder", QStringLiteral("新建文件夹")},
        {"List View", QStringLiteral("列表")},
        {"Change to list view mode", QStringLiteral("显示为列表")},
        {"Detail View", QStringLiteral("详细信息")},
        {"Change to detail view mode", QStringLiteral("显示详细信息")},
        {"Sidebar", QStringLiteral("位置")},
        {"List of places and bookmarks", QStringLiteral("常用位置")},
        {"Files", QStringLiteral("文件")},
        {"&Rename", QStringLiteral("重命名(&R)")},
        {"&Delete", QStringLiteral("删除(&D)")},
        {"Show &hidden files", QStringLiteral("显示隐藏文件(&H)")},
        {"Show ", QStringLiteral("显示 ")},
        {"Remove", QStringLiteral("移除")},
        {"Recent Places", QStringLiteral("最近的位置")},
        // File dialogs: columns and what is in them
        {"Name", QStringLiteral("名称")},
        {"Size", QStringLiteral("大小")},
        {"Type", QStringLiteral("类型")},
        {"Kind", QStringLiteral("类型")},
        {"Date Modified", QStringLiteral("修改时间")},
        {"Computer", QStringLiteral("计算机")},
        {"My Computer", QStringLiteral("计算机")},
        {"Drive", QStringLiteral("驱动器")},
        {"Folder", QStringLiteral("文件夹")},
        {"File Folder", QStringLiteral("文件夹")},
        {"File", QStringLiteral("文件")},
        {"%1 File", QStringLiteral("%1 文件")},
        {"bytes", QStringLiteral("字节")},
        // File dialogs: questions and messages
        {"%1 already exists.\nDo you want to replace it?",
         QStringLiteral("“%1”已经存在。\n要替换它吗？")},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         QStringLiteral("%1\n找不到该文件。\n请检查文件名。")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\n找不到该文件夹。\n请检查文件夹名。")},
        {"'%1' is write protected.\nDo you want to delete it anyway?",
         QStringLiteral("“%1”有写保护。\n仍要删除吗？")},
        {"Are you sure you want to delete '%1'?", QStringLiteral("要删除“%1”吗？")},
        {"Could not delete directory.", QStringLiteral("无法删除文件夹。")},
        {"Invalid filename", QStringLiteral("文件名无效")},
        {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters "
         "or "
         "no punctuation marks.",
         QStringLiteral("<b>不能使用名称“%1”。</b><p>请换一个较短或不含标点的名称。")},
    };
    return s_texts;
}

}

ToolkitTexts::ToolkitTexts()
{
    QCoreApplication::installTranslator(this);
}

ToolkitTexts::~ToolkitTexts()
{
    QCoreApplication::removeTranslator(this);
}

QString ToolkitTexts::translate(const char* context, const char* sourceText, const char*, int) const
{
    const bool isKeyName = qstrcmp(context, "QShortcut") == 0;
    return isKeyName ? QString() : Texts().value(sourceText);
}
