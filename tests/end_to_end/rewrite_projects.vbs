' Lets the add-in in the bench rewrite projects: in each of them every module by one command, with
' the caret where the list of carets has it; then the project is saved.
' Usage: cscript //nologo rewrite_projects.vbs FOLDER
' FOLDER\jobs.txt has a line for each project: its folder; the submenu of the command, or nothing;
' the command. FOLDER\carets.txt has a line for each module: its name; the line.
Option Explicit

Const SaveProject = 3

Dim vbe, root, carets
root = WScript.Arguments(0) & "\"
Set carets = CreateObject("Scripting.Dictionary")
ReadCarets
Set vbe = CreateObject("BrimworkBench.Application")
RunJobs
vbe.Quit
WScript.Echo "done"

Function LinesOf(path)
    Dim files
    Set files = CreateObject("Scripting.FileSystemObject")
    LinesOf = Split(files.OpenTextFile(path).ReadAll, vbCrLf)
End Function

Sub ReadCarets
    Dim lines, parts, i
    lines = LinesOf(root & "carets.txt")
    For i = 0 To UBound(lines) - 1
        parts = Split(lines(i), ";")
        carets.Add parts(0), CLng(parts(1))
    Next
End Sub

Sub RunJobs
    Dim lines, parts, i
    lines = LinesOf(root & "jobs.txt")
    For i = 0 To UBound(lines) - 1
        parts = Split(lines(i), ";")
        Rewrite root & parts(0) & "\Project.vbp", EntryOf(parts(1), parts(2))
    Next
End Sub

Function EntryOf(submenu, caption)
    Dim entries
    Set entries = vbe.CommandBars("Add-Ins").Controls("Brimwork").Controls
    If submenu <> "" Then Set entries = entries(submenu).Controls
    Set EntryOf = entries(caption)
End Function

Sub Rewrite(project, entry)
    Dim component, pane, line
    vbe.VBProjects.AddFromFile project, True
    For Each component In vbe.ActiveVBProject.VBComponents
        Set pane = component.CodeModule.CodePane
        line = carets.Item(component.Name)
        pane.Show
        pane.SetSelection line, 1, line, 1
        entry.Execute
        pane.Window.Close
    Next
    vbe.CommandBars.FindControl(1, SaveProject).Execute
End Sub
