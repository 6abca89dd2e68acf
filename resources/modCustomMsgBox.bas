'=========================================================================================
'  modCustomMsgBox
'  Message boxes with a time-out, a place, a check box and button captions of your own
'=========================================================================================
'  Adapted and Modified By: the message box designer of Brimwork, for this project
'  Published Date: together with Brimwork
'  WebSite: see the Help menu of Brimwork
'=========================================================================================
'  Based On: modCustomMsgBox, the custom message box of the Brimwork add-in
'  WebSite: see the Help menu of Brimwork
'=========================================================================================
Option Explicit

' One message box at a time: these variables carry it from the call to its timers.
Private MsgBoxTitle As String
Private MsgBoxText As String
Private MsgBoxX As Long
Private MsgBoxY As Long
Private MsgBoxTimeOut As Integer
Private MsgBoxHWND As Long
Private MsgBoxButtons As Long
Private MsgBoxCheckBoxText As String
Private MsgBoxCheckBoxHWND As Long
Private MsgBoxCheckBoxValue As Boolean
Private MsgBoxButtonCount As Integer
Private MsgBoxButtonText() As String
Private MsgBoxOriginalButtonText() As String

Private Type RECT
    Left As Long
    Top As Long
    Right As Long
    Bottom As Long
End Type

' Timers of the message box: each one does the job that its number names.
Private Const MB_CLOSEMSGBOX As Long = &H5000&
Private Const MB_MOVEMSGBOX As Long = &H5001&
Private Const MB_CHANGEBUTTONTEXT As Long = &H5002&
Private Const MB_CHECK_CHECKBOXVALUE As Long = &H5003&
Private Const MB_ADDCHECKBOX As Long = &H5004&

Private Const SWP_NOSIZE As Long = &H1&
Private Const WS_CHILD As Long = &H40000000
Private Const WS_VISIBLE As Long = &H10000000
Private Const WS_TABSTOP As Long = &H10000
Private Const WM_SETFONT As Long = &H30&
Private Const WM_GETFONT As Long = &H31&
Private Const BS_AUTOCHECKBOX As Long = &H3&
Private Const HWND_TOPMOST As Long = -1&
Private Const BM_GETSTATE As Long = &HF2&

Private Const DIALOG_CLASS As String = "#32770"
Private Const STATIC_CLASS As String = "Static"
Private Const BUTTON_CLASS As String = "Button"

Private Declare Function SetTimer Lib "user32" (ByVal hWnd As Long, _
    ByVal nIDEvent As Long, ByVal uElapse As Long, ByVal lpTimerFunc As Long) As Long
Private Declare Function KillTimer Lib "user32" (ByVal hWnd As Long, _
    ByVal nIDEvent As Long) As Long
Private Declare Function MessageBox Lib "user32" Alias "MessageBoxA" (ByVal hWnd As Long, _
    ByVal lpText As String, ByVal lpCaption As String, ByVal uType As Long) As Long
Private Declare Function FindWindow Lib "user32" Alias "FindWindowA" ( _
    ByVal lpClassName As String, ByVal lpWindowName As String) As Long
Private Declare Function FindWindowEx Lib "user32" Alias "FindWindowExA" ( _
    ByVal hWndParent As Long, ByVal hWndChildAfter As Long, _
    ByVal lpszClass As String, ByVal lpszWindow As String) As Long
Private Declare Function SetForegroundWindow Lib "user32" (ByVal hWnd As Long) As Long
Private Declare Function GetFocus Lib "user32" () As Long
Private Declare Function GetWindowRect Lib "user32" (ByVal hWnd As Long, _
    ByRef lpRect As RECT) As Long
Private Declare Function SetWindowPos Lib "user32" (ByVal hWnd As Long, _
    ByVal hWndInsertAfter As Long, ByVal X As Long, ByVal Y As Long, _
    ByVal cx As Long, ByVal cy As Long, ByVal uFlags As Long) As Long
Private Declare Function MoveWindow Lib "user32" (ByVal hWnd As Long, _
    ByVal X As Long, ByVal Y As Long, ByVal nWidth As Long, _
    ByVal nHeight As Long, ByVal bRepaint As Long) As Long
Private Declare Function CreateWindowEx Lib "user32" Alias "CreateWindowExA" ( _
    ByVal dwExStyle As Long, ByVal lpClassName As String, ByVal lpWindowName As String, _
    ByVal dwStyle As Long, ByVal X As Long, ByVal Y As Long, _
    ByVal nWidth As Long, ByVal nHeight As Long, ByVal hWndParent As Long, _
    ByVal hMenu As Long, ByVal hInstance As Long, ByRef lpParam As Any) As Long
Private Declare Function SendMessage Lib "user32" Alias "SendMessageA" ( _
    ByVal hWnd As Long, ByVal wMsg As Long, ByVal wParam As Long, _
    ByRef lParam As Any) As Long
Private Declare Function SetWindowText Lib "user32" Alias "SetWindowTextA" ( _
    ByVal hWnd As Long, ByVal lpString As String) As Long

' Shows a message box and returns the button that closed it (vbOK, vbYes, ...).
'   TimeOut             seconds until it closes by its focused button, up to 32; -1 for never
'   X, Y                its place in pixels; -1 to leave it where Windows puts it
'   CheckBoxText        the caption of a check box; empty for none
'   CheckBoxValue       takes what became of the check box
'   ButtonCount         how many buttons the box has
'   ButtonText          new captions, joined by commas; an empty one keeps the old caption
'   OriginalButtonText  the captions that the buttons have, joined by commas
Public Function CreateSpecialMsgbox(ByVal Text As String, ByVal Buttons As Long, _
    ByVal Title As String, Optional ByVal TimeOut As Integer = -1, _
    Optional ByVal X As Long = -1, Optional ByVal Y As Long = -1, _
    Optional ByVal CheckBoxText As String = "", Optional ByRef CheckBoxValue As Boolean, _
    Optional ByVal ButtonCount As Integer, Optional ByVal ButtonText As String, _
    Optional ByVal OriginalButtonText As String) As Long
    Dim Owner As Long

    On Error Resume Next

    ' Without an active form the box has no owner; the former box must not become it.
    MsgBoxHWND = 0
    MsgBoxHWND = Screen.ActiveForm.hWnd
    Owner = MsgBoxHWND

    MsgBoxText = Text
    MsgBoxButtons = Buttons
    MsgBoxTitle = Title
    MsgBoxTimeOut = TimeOut * 1000
    MsgBoxX = X
    MsgBoxY = Y
    MsgBoxCheckBoxText = CheckBoxText
    MsgBoxCheckBoxValue = CheckBoxValue
    MsgBoxButtonCount = ButtonCount
    MsgBoxButtonText = Split(ButtonText, ",")
    MsgBoxOriginalButtonText = Split(OriginalButtonText, ",")

    If MsgBoxX <> -1 And MsgBoxY <> -1 Then
        SetTimer Owner, MB_MOVEMSGBOX, 0, AddressOf NewTimerProc
    End If
    If MsgBoxTimeOut > 0 Then
        SetTimer Owner, MB_CLOSEMSGBOX, MsgBoxTimeOut, AddressOf NewTimerProc
    End If
    If Len(ButtonText) > 0 And Len(OriginalButtonText) > 0 Then
        SetTimer Owner, MB_CHANGEBUTTONTEXT, 0, AddressOf NewTimerProc
    End If
    If Len(MsgBoxCheckBoxText) > 0 Then
        SetTimer Owner, MB_CHECK_CHECKBOXVALUE, 0, AddressOf NewTimerProc
        SetTimer Owner, MB_ADDCHECKBOX, 0, AddressOf NewTimerProc
    End If

    CreateSpecialMsgbox = MessageBox(Owner, Text, Title, Buttons)

    If Len(CheckBoxText) > 0 Then
        MsgBoxCheckBoxHWND = 0
        KillTimer Owner, MB_CHECK_CHECKBOXVALUE
        CheckBoxValue = MsgBoxCheckBoxValue
    End If
End Function

' Called by the timers while the message box is up; wParam says which job is due.
Public Sub NewTimerProc(ByVal hWnd As Long, ByVal Message As Long, _
    ByVal wParam As Long, ByVal lParam As Long)
    On Error Resume Next

    If wParam = MB_CHECK_CHECKBOXVALUE Then
        If MsgBoxCheckBoxHWND > 0 Then
            MsgBoxCheckBoxValue = (SendMessage(MsgBoxCheckBoxHWND, BM_GETSTATE, 0, ByVal 0&) <> 0)
        Else
            KillTimer hWnd, wParam
        End If
        Exit Sub
    End If

    KillTimer hWnd, wParam
    MsgBoxHWND = FindWindow(DIALOG_CLASS, MsgBoxTitle)
    If MsgBoxHWND = 0 Then Exit Sub

    Select Case wParam
        Case MB_CLOSEMSGBOX
            CloseBox
        Case MB_MOVEMSGBOX
            MoveBox
        Case MB_ADDCHECKBOX
            AddCheckBox hWnd
        Case MB_CHANGEBUTTONTEXT
            ChangeButtonText
    End Select
End Sub

' Enter goes to the focused button; of a single button the check box may have taken the focus.
Private Sub CloseBox()
    On Error Resume Next

    SetForegroundWindow MsgBoxHWND
    If MsgBoxCheckBoxHWND > 0 Then
        If GetFocus() = MsgBoxCheckBoxHWND Then
            If MsgBoxButtonCount = 1 Then SendKeys "{TAB}"
            If MsgBoxButtonCount > 1 Then SetForegroundWindow MsgBoxHWND
        End If
    End If
    SendKeys "{ENTER}"
End Sub

' The upper edge counts only for a box that lay too far left.
Private Sub MoveBox()
    Dim Box As RECT
    Dim ScreenWidth As Long
    Dim ScreenHeight As Long

    On Error Resume Next

    GetWindowRect MsgBoxHWND, Box
    ScreenWidth = Screen.Width / Screen.TwipsPerPixelX
    ScreenHeight = Screen.Height / Screen.TwipsPerPixelY
    If MsgBoxX > ScreenWidth - (Box.Right - Box.Left) - 1 Then
        MsgBoxX = ScreenWidth - (Box.Right - Box.Left) - 1
    End If
    If MsgBoxY > ScreenHeight - (Box.Bottom - Box.Top) - 1 Then
        MsgBoxY = ScreenHeight - (Box.Bottom - Box.Top) - 1
    End If
    If MsgBoxX < 1 Then
        MsgBoxX = 1
        If MsgBoxY < 1 Then MsgBoxY = 1
    End If
    SetWindowPos MsgBoxHWND, HWND_TOPMOST, MsgBoxX, MsgBoxY, 0, 0, SWP_NOSIZE
End Sub

' The check box comes below the prompt, in the prompt's font, and the box grows to hold it.
Private Sub AddCheckBox(ByVal Owner As Long)
    Dim Prompt As Long
    Dim Box As RECT
    Dim ActiveForm As Form
    Dim CheckBoxHeight As Integer
    Dim PromptFont As Long

    On Error Resume Next

    Prompt = FindWindowEx(MsgBoxHWND, 0, STATIC_CLASS, MsgBoxText)
    GetWindowRect MsgBoxHWND, Box
    Set ActiveForm = Screen.ActiveForm
    CheckBoxHeight = ActiveForm.TextHeight(MsgBoxCheckBoxText) / Screen.TwipsPerPixelY
    MsgBoxCheckBoxHWND = CreateWindowEx(0, BUTTON_CLASS, MsgBoxCheckBoxText, _
        WS_CHILD Or WS_VISIBLE Or WS_TABSTOP Or BS_AUTOCHECKBOX, _
        3, (Box.Bottom - Box.Top) - CheckBoxHeight - 15, _
        ActiveForm.TextWidth(MsgBoxCheckBoxText) / Screen.TwipsPerPixelX + 22, CheckBoxHeight, _
        MsgBoxHWND, 0, App.hInstance, ByVal 0&)
    PromptFont = SendMessage(Prompt, WM_GETFONT, 0, ByVal 0&)
    SendMessage MsgBoxCheckBoxHWND, WM_SETFONT, PromptFont, ByVal 1&
    MoveWindow MsgBoxHWND, Box.Left, Box.Top, Box.Right - Box.Left, _
        (Box.Bottom - Box.Top) + CheckBoxHeight, 1

    ' Windows promises no order among timers that are due together: the poll may have come
    ' first and, finding no check box, have ended.
    If MsgBoxCheckBoxHWND > 0 Then
        SetTimer Owner, MB_CHECK_CHECKBOXVALUE, 0, AddressOf NewTimerProc
    End If

    Set ActiveForm = Nothing
End Sub

' Buttons are found by the caption that they have by then. A list of new captions that is too
' short leaves the other buttons alone.
Private Sub ChangeButtonText()
    Dim Index As Long
    Dim Caption As String
    Dim Button As Long

    On Error Resume Next

    For Index = 0 To UBound(MsgBoxOriginalButtonText)
        Caption = ""
        Caption = MsgBoxButtonText(Index)
        If Len(Caption) > 0 Then
            Button = FindWindowEx(MsgBoxHWND, 0, BUTTON_CLASS, MsgBoxOriginalButtonText(Index))
            If Button <> 0 Then SetWindowText Button, Caption
        End If
    Next Index
End Sub
