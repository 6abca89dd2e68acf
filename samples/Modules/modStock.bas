Attribute VB_Name = "modStock"
Option Explicit
' The stock file: one part a line, fields parted by |
'     code | description | on hand | reorder level | pence a piece
#Const TRACE_STOCK = 0

Private Declare Function GetTickCount Lib "kernel32" () As Long
Private Declare Function GetPrivateProfileString Lib "kernel32" _
	Alias "GetPrivateProfileStringA" (ByVal lpSection As String, _
    ByVal lpKey As String, ByVal lpDefault As String, _
  ByVal lpBuffer As String, ByVal nSize As Long, _
    ByVal lpFile As String) As Long

#If TRACE_STOCK Then
Private Declare Sub OutputDebugString Lib "kernel32" Alias "OutputDebugStringA" (ByVal lpText As String)
   Private Const TRACE_NAME = "stock: "
#Else
Private Const TRACE_NAME = ""
#End If

Public Enum StockState
 ssPlenty = 0
	ssLow
    ssNone          ' nothing left on the shelf
End Enum

Public Type PartRecord
   Code As String
 Description As String
	OnHand As Long
    ReorderLevel As Long
  Pence As Currency
End Type

Public gParts() As PartRecord
Public gPartCount As Long
Private mLoadTime As Long


Public Function LoadStock(ByVal FileName As String, _
        Optional ByVal Quiet As Boolean = False) As Boolean
' reads the whole stock file, an apostrophe starts a remark
Dim f As Integer, textLine As String
Dim fields() As String, _
    started As Long
On Error GoTo Trouble
	started = GetTickCount()
	f = FreeFile
  Open FileName For Input As #f
     gPartCount = 0
   ReDim gParts(1 To 50)
Do While Not EOF(f)
Line Input #f, textLine
	If Len(Trim$(textLine)) > 0 And Left$(textLine, 1) <> "'" Then
      fields = Split(textLine, "|")
      If UBound(fields) >= 4 Then
   gPartCount = gPartCount + 1
          If gPartCount > UBound(gParts) Then ReDim Preserve gParts(1 To gPartCount + 50)
        With gParts(gPartCount)
	.Code = Trim$(fields(0))
		.Description = Trim$(fields(1))
     .OnHand = CLng(fields(2)): .ReorderLevel = CLng(fields(3))
   .Pence = CCur(fields(4))
        End With
      Else
       If Not Quiet Then MsgBox "Line """ & textLine & """ isn't a part: it needs 5 fields", vbExclamation, "Stock"
      End If
  End If
Loop
Close #f
mLoadTime = GetTickCount() - started
LoadStock = True
Exit Function

Trouble:
  If f <> 0 Then Close #f
  If Not Quiet Then MsgBox "Can't read '" & FileName & "': " & Err.Description, vbCritical, "Stock"
End Function
Public Sub SaveStock(ByVal FileName As String)
10:    Dim f As Integer, n As Long
20:    On Error GoTo Failed
30:    f = FreeFile
40:    Open FileName For Output As #f
50:    Print #f, "' stock of " & Format$(Now, "d mmm yyyy") & ", don't edit while the desk is open"
60:    For n = 1 To gPartCount
70:      Print #f, gParts(n).Code & "|" & gParts(n).Description & "|" & _
                  gParts(n).OnHand & "|" & _
             gParts(n).ReorderLevel & "|" & gParts(n).Pence
80:    Next n
90:    Close #f
100:   Exit Sub
Failed:
  MsgBox "Stock not saved, stopped at line " & Erl & vbCrLf & Err.Description, vbCritical, "Stock"
End Sub

Public Function FindPart(ByVal Code As String) As Long
Dim n As Long
n = 1
While n <= gPartCount And FindPart = 0
If StrComp(gParts(n).Code, Code, vbTextCompare) = 0 Then FindPart = n
		n = n + 1
Wend
End Function



' how much of a part is left
Public Function StateOf(ByVal partIndex As Long) As StockState
With gParts(partIndex)
Select Case True
Case .OnHand <= 0
StateOf = ssNone
    Case .OnHand <= .ReorderLevel: StateOf = ssLow
Case Else
		StateOf = ssPlenty
End Select
End With
End Function

Public Function TakeFromShelf(ByVal Code As String, ByVal pieces As Long) As Boolean
  Dim at As Long
	at = FindPart(Code)
  If at = 0 Then Exit Function
 If gParts(at).OnHand >= pieces Then
gParts(at).OnHand = gParts(at).OnHand - pieces
      TakeFromShelf = True
	  If StateOf(at) <> ssPlenty Then
	  Debug.Print TRACE_NAME; gParts(at).Code; " is running out, "; gParts(at).OnHand; " left"
	  End If
 End If
End Function

Public Function DeskSetting(ByVal key As String, ByVal otherwise As String) As String
    Dim buffer As String, length As Long
    buffer = String$(255, vbNullChar)
        length = GetPrivateProfileString("Desk", key, otherwise, _
   buffer, Len(buffer), _
      App.Path & "\desk.ini")
    DeskSetting = Left$(buffer, length)
End Function
