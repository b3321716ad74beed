#include "ToolkitTexts.h"

#include "Model/UiText.h"

#include <QCoreApplication>
#include <QHash>

namespace
{

/// Source texts by the toolkit's English ones. Where one occurs in several windows it means the
/// same.
const QHash<QByteArray, const char*>& Texts()
{
    static const QHash<QByteArray, const char*> s_texts = {
        // Standard buttons
        {"OK", "确定"_source},
        {"Cancel", "取消"_source},
        {"Close", "关闭"_source},
        {"Open", "打开"_source},
        {"Save", "保存"_source},
        {"Discard", "不保存"_source},
        {"&Yes", "是(&Y)"_source},
        {"&No", "否(&N)"_source},
        {"Abort", "中止"_source},
        {"Retry", "重试"_source},
        {"Ignore", "忽略"_source},
        {"Show Details...", "显示详细信息…"_source},
        {"Hide Details...", "隐藏详细信息…"_source},
        // Text fields
        {"&Undo", "撤销(&U)"_source},
        {"&Redo", "重做(&R)"_source},
        {"Cu&t", "剪切(&T)"_source},
        {"&Copy", "复制(&C)"_source},
        {"Copy &Link Location", "复制链接地址(&L)"_source},
        {"&Paste", "粘贴(&P)"_source},
        {"Delete", "删除"_source},
        {"Select All", "全选"_source},
        {"&Select All", "全选(&S)"_source},
        {"&Step up", "增大(&U)"_source},
        {"Step &down", "减小(&D)"_source},
        // Panes
        {"Float", "浮动"_source},
        {"Undocks and re-attaches the dock widget", "浮动，或放回窗口"_source},
        {"Closes the dock widget", "关闭面板"_source},
        // File dialogs: controls
        {"Look in:", "文件夹："_source},
        {"File &name:", "文件名(&N)："_source},
        {"Directory:", "文件夹："_source},
        {"Files of type:", "类型："_source},
        {"&Open", "打开(&O)"_source},
        {"&Save", "保存(&S)"_source},
        {"&Choose", "选择(&C)"_source},
        {"Save As", "另存为"_source},
        {"Find Directory", "选择文件夹"_source},
        {"All Files (*)", "所有文件 (*)"_source},
        {"Directories", "文件夹"_source},
        {"Back", "后退"_source},
        {"Go back", "后退"_source},
        {"Forward", "前进"_source},
        {"Go forward", "前进"_source},
        {"Parent Directory", "上一级"_source},
        {"Go to the parent directory", "转到上一级文件夹"_source},
        {"Create New Folder", "新建文件夹"_source},
        {"Create a New Folder", "新建文件夹"_source},
        {"&New Folder", "新建文件夹(&N)"_source},
        {"New Folder", "新建文件夹"_source},
        {"List View", "列表"_source},
        {"Change to list view mode", "显示为列表"_source},
        {"Detail View", "详细信息"_source},
        {"Change to detail view mode", "显示详细信息"_source},
        {"Sidebar", "位置"_source},
        {"List of places and bookmarks", "常用位置"_source},
        {"Files", "文件"_source},
        {"&Rename", "重命名(&R)"_source},
        {"&Delete", "删除(&D)"_source},
        {"Show &hidden files", "显示隐藏文件(&H)"_source},
        {"Show ", "显示 "_source},
        {"Remove", "移除"_source},
        {"Recent Places", "最近的位置"_source},
        // File dialogs: columns and what is in them
        {"Name", "名称"_source},
        {"Size", "大小"_source},
        {"Type", "类型"_source},
        {"Kind", "类型"_source},
        {"Date Modified", "修改时间"_source},
        {"Computer", "计算机"_source},
        {"My Computer", "计算机"_source},
        {"Drive", "驱动器"_source},
        {"Folder", "文件夹"_source},
        {"File Folder", "文件夹"_source},
        {"File", "文件"_source},
        {"%1 File", "%1 文件"_source},
        {"bytes", "字节"_source},
        // File dialogs: questions and messages
        {"%1 already exists.\nDo you want to replace it?", "“%1”已经存在。\n要替换它吗？"_source},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         "%1\n找不到该文件。\n请检查文件名。"_source},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         "%1\n找不到该文件夹。\n请检查文件夹名。"_source},
        {"'%1' is write protected.\nDo you want to delete it anyway?",
         "“%1”有写保护。\n仍要删除吗？"_source},
        {"Are you sure you want to delete '%1'?", "要删除“%1”吗？"_source},
        {"Could not delete directory.", "无法删除文件夹。"_source},
        {"Invalid filename", "文件名无效"_source},
        {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters "
         "or "
         "no punctuation marks.",
         "<b>不能使用名称“%1”。</b><p>请换一个较短或不含标点的名称。"_source},
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
    const char* pText = isKeyName ? nullptr : Texts().value(sourceText);
    return pText != nullptr ? Tr(pText) : QString();
}
