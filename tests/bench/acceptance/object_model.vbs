' Drives a running bench from outside, as any script may: opens a project, looks at it, changes it,
' and prints what it sees.
' Usage: cscript //nologo object_model.vbs PROJECT
Option Explicit

Const ProcKinds = "procedure,let,set,get"
Const Popup = 10
Const CommentBlock = 192
Const UncommentBlock = 2552

Class Transcript
    Private count

    Public Sub Say(text)
        count = count + 1
        WScript.Echo text
    End Sub

    Public Property Get Lines()
        Lines = count
    End Property
End Class

Dim out, vbe
Set out = New Transcript
Set vbe = CreateObject("BrimworkBench.Application")
vbe.VBProjects.AddFromFile WScript.Arguments(0), True

ShowProject vbe.ActiveVBProject
ShowProcedures vbe.ActiveVBProject.VBComponents("modStock").CodeModule
EditModule vbe.ActiveVBProject.VBComponents("modStock").CodeModule
MoveSelection vbe.ActiveVBProject.VBComponents("modStock").CodeModule.CodePane
FindText vbe.ActiveCodePane.CodeModule
CommentLines vbe.ActiveCodePane
AddBar
ShowWindows
ShowErrors
out.Say "lines: " & out.Lines
vbe.Quit

Sub ShowProject(project)
    Dim component
    out.Say "project: " & project.Name & ", " & project.VBComponents.Count & " components"
    For Each component In project.VBComponents
        out.Say "component: " & component.Name & ", type " & component.Type & ", " & _
            component.CodeModule.CountOfLines & " lines, " & _
            component.CodeModule.CountOfDeclarationLines & " of declarations"
    Next
End Sub

Sub ShowProcedures(module)
    Dim line, name, kind, kinds
    kinds = Split(ProcKinds, ",")
    line = module.CountOfDeclarationLines + 1
    Do While line <= module.CountOfLines
        name = module.ProcOfLine(line, kind)
        If name = "" Then Exit Do
        out.Say kinds(kind) & ": " & name & ", start " & _
            module.ProcStartLine(name, kind) & ", body " & module.ProcBodyLine(name, kind) & _
            ", " & module.ProcCountLines(name, kind) & " lines"
        line = module.ProcStartLine(name, kind) + module.ProcCountLines(name, kind)
    Loop
End Sub

Sub EditModule(module)
    Dim before
    before = module.CountOfLines
    module.InsertLines 1, "' first" & vbCrLf & "' second"
    module.ReplaceLine 2, "' 2nd"
    module.InsertLines module.CountOfLines + 1, "' last" & vbCrLf
    out.Say "edited: " & Replace(module.Lines(1, 3), vbCrLf, "|")
    out.Say "grown by " & (module.CountOfLines - before)
    module.DeleteLines 1
    module.DeleteLines module.CountOfLines - 1, 99
    out.Say "left: " & Replace(module.Lines(1, 2), vbCrLf, "|")
    out.Say "grown by " & (module.CountOfLines - before)
End Sub

Sub MoveSelection(pane)
    Dim a, b, c, d
    pane.SetSelection 2, 3, 4, 1
    pane.GetSelection a, b, c, d
    out.Say "selection: " & a & " " & b & " " & c & " " & d
    pane.SetSelection 3, 999, 3, 999
    pane.GetSelection a, b, c, d
    out.Say "caret: " & a & " " & b & " " & c & " " & d
    out.Say "pane of: " & pane.CodeModule.Parent.Name & " in " & pane.Window.Caption
End Sub

Sub FindText(module)
    Dim a, b, c, d
    a = 1: b = 1: c = -1: d = -1
    out.Say "found: " & module.Find("end sub", a, b, c, d)
    out.Say "at: " & a & " " & b & " " & c & " " & d
    a = 1: b = 1: c = -1: d = -1
    out.Say "found with case: " & module.Find("end sub", a, b, c, d, False, True)
End Sub

Sub CommentLines(pane)
    pane.SetSelection 2, 1, 4, 1
    vbe.CommandBars.FindControl(, CommentBlock).Execute
    out.Say "commented: " & Replace(pane.CodeModule.Lines(2, 3), vbCrLf, "|")
    vbe.CommandBars.FindControl(, UncommentBlock).Execute
    out.Say "uncommented: " & Replace(pane.CodeModule.Lines(2, 3), vbCrLf, "|")
End Sub

Sub AddBar()
    Dim bar, button, menu, control
    Set bar = vbe.CommandBars.Add("Script Bar", 4, , True)
    out.Say "bar: " & bar.Name & ", visible " & bar.Visible & ", built in " & bar.BuiltIn
    Set button = bar.Controls.Add
    button.Caption = "&Press"
    button.Tag = "script.press"
    Set menu = bar.Controls.Add(Popup)
    menu.Caption = "&More"
    menu.Controls.Add.Caption = "Inside"
    bar.Controls.Add(, , "here", 1).Caption = "&First"
    bar.Visible = True
    For Each control In bar.Controls
        out.Say "control: " & control.Index & " " & control.Caption & ", type " & control.Type & _
            ", parameter '" & control.Parameter & "'"
    Next
    out.Say "found by tag: " & bar.FindControl(, , "script.press").Caption
    out.Say "no such tag: " & (vbe.CommandBars.FindControl(, , "script.none") Is Nothing)
    out.Say "by caption: " & bar.Controls("More").Controls(1).Caption
    out.Say "bar is visible: " & vbe.CommandBars("Script Bar").Visible
    bar.Delete
End Sub

Sub ShowWindows()
    Dim window
    For Each window In vbe.Windows
        out.Say "window: " & window.Caption & ", type " & window.Type & ", visible " & window.Visible
    Next
    out.Say "active: " & vbe.ActiveWindow.Caption
End Sub

Sub ShowErrors()
    Dim module, nothingElse
    Set module = vbe.ActiveCodePane.CodeModule
    On Error Resume Next
    nothingElse = module.Lines(0, 1)
    out.Say "line 0: error " & Err.Number
    Err.Clear
    nothingElse = module.ProcBodyLine("NoSuchProcedure", 0)
    out.Say "unknown procedure: error " & Err.Number
    Err.Clear
    vbe.Windows("No such window").Close
    out.Say "unknown window: error " & Err.Number
    Err.Clear
End Sub
