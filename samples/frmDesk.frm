VERSION 5.00
Object = "{5E9E78A0-531B-11CF-91F6-C2863C385E30}#1.0#0"; "MSFLXGRD.OCX"
Begin VB.Form frmDesk 
   Caption         =   "Workshop desk"
   ClientHeight    =   4710
   ClientLeft      =   165
   ClientTop       =   735
   ClientWidth     =   7695
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "Form1"
   ScaleHeight     =   4710
   ScaleWidth      =   7695
   StartUpPosition =   3  'Windows Default
   Begin VB.Frame fraEntry 
      Caption         =   "New line"
      Height          =   1215
      Left            =   120
      TabIndex        =   1
      Top             =   3360
      Width           =   7455
      Begin VB.ComboBox cboPart 
         Height          =   315
         Left            =   240
         Style           =   2  'Dropdown List
         TabIndex        =   2
         Top             =   480
         Width           =   3255
      End
      Begin VB.TextBox txtPieces 
         Alignment       =   1  'Right Justify
         Height          =   315
         Left            =   3720
         MaxLength       =   4
         TabIndex        =   3
         Text            =   "1"
         Top             =   480
         Width           =   735
      End
      Begin VB.CheckBox chkTrade 
         Caption         =   "&Trade customer"
         Height          =   255
         Left            =   4680
         TabIndex        =   4
         Top             =   510
         Width           =   1575
      End
      Begin VB.CommandButton cmdAdd 
         Caption         =   "&Add"
         Default         =   -1  'True
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Height          =   375
         Left            =   6360
         TabIndex        =   5
         Top             =   450
         Width           =   855
      End
   End
   Begin MSFlexGridLib.MSFlexGrid grdLines 
      Height          =   2655
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   7455
      _ExtentX        =   13150
      _ExtentY        =   4683
      _Version        =   393216
      Cols            =   4
      FixedCols       =   0
   End
   Begin VB.Label lblTotal 
      Alignment       =   1  'Right Justify
      Caption         =   "nothing yet"
      Height          =   255
      Left            =   3720
      TabIndex        =   6
      Top             =   2940
      Width           =   3855
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileSave 
         Caption         =   "&Save stock"
         Shortcut        =   ^S
      End
      Begin VB.Menu mnuFileLine 
         Caption         =   "-"
      End
      Begin VB.Menu mnuFileExit 
         Caption         =   "E&xit"
      End
   End
End
Attribute VB_Name = "frmDesk"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private WithEvents mInvoice As InvoiceLines
Attribute mInvoice.VB_VarHelpID = -1
Dim mStockFile As String, _
	mUnsaved As Boolean

Private Sub Form_Load()
mStockFile = DeskSetting("StockFile", App.Path & "\stock.txt")
Me.Caption = WORKSHOP_NAME & " - workshop desk"
	Set mInvoice = New InvoiceLines
	mInvoice.CustomerName = DeskSetting("Customer", "")
   With grdLines
   .Rows = 1
     .TextMatrix(0, 0) = "Part": .TextMatrix(0, 1) = "Pieces"
   .TextMatrix(0, 2) = "Each"
.TextMatrix(0, 3) = "Amount"
	.ColWidth(0) = 3200
   End With
   If LoadStock(mStockFile) Then
FillParts
Else
      cmdAdd.Enabled = False
   End If
End Sub ' of the start

Private Sub FillParts()
Dim n As Long, i%
	cboPart.Clear
	For n = 1 To gPartCount
	  If StateOf(n) <> ssNone Then
		cboPart.AddItem gParts(n).Code & "  " & gParts(n).Description
	cboPart.ItemData(cboPart.NewIndex) = n
	  End If
	Next n
'	For i = 0 To 3: Debug.Print grdLines.ColWidth(i): Next i
	For i = 1 To 3: grdLines.ColWidth(i) = 1200: Next i
	If cboPart.ListCount > 0 Then cboPart.ListIndex = 0
End Sub

Private Sub txtPieces_KeyPress(KeyAscii As Integer)
   Select Case KeyAscii
   Case vbKey0 To vbKey9, vbKeyBack
		' digits may pass
   Case Else
      KeyAscii = 0: Beep
   End Select
End Sub

Private Sub txtPieces_GotFocus()
txtPieces.SelStart = 0
txtPieces.SelLength = Len(txtPieces.Text)
End Sub

Private Sub cmdAdd_Click()
Dim part As Long, pieces As Long
Dim entry As InvoiceLine

	If cboPart.ListIndex < 0 Then Exit Sub
	part = cboPart.ItemData(cboPart.ListIndex)
pieces = Val(txtPieces.Text)
	If pieces < 1 Then
	  MsgBox "How many pieces? ""0"" can't be sold.", vbInformation, "New line"
	    txtPieces.SetFocus
	  Exit Sub
	ElseIf Not TakeFromShelf(gParts(part).Code, pieces) Then
If MsgBox("Only " & gParts(part).OnHand & " on the shelf." & vbCrLf & _
	   "Take them all?", vbYesNo + vbQuestion, _
  "New line") = vbYes Then
		pieces = gParts(part).OnHand
		   If pieces = 0 Or Not TakeFromShelf(gParts(part).Code, pieces) Then Exit Sub
	Else
	     Exit Sub
End If
	End If
 mUnsaved = True
Set entry = mInvoice.Add(gParts(part).Code, pieces, gParts(part).Pence, _
      chkTrade.Value = vbChecked)
   grdLines.AddItem gParts(part).Description & vbTab & entry.pieces & vbTab & _
                  PriceText(entry.pence) & vbTab & PriceText(entry.Amount)
End Sub

Private Sub mInvoice_Changed(ByVal total As Currency)
    ' shown with tax, that's what people ask for
    lblTotal.Caption = mInvoice.Count & IIf(mInvoice.Count = 1, " line: ", " lines: ") & _
		PriceText(total + TaxOn(total)) & " incl. tax"
End Sub

Private Sub mnuFileSave_Click()
SaveStock mStockFile
mUnsaved = False
End Sub

Private Sub mnuFileExit_Click()
	Unload Me
End Sub

Private Sub Form_QueryUnload(Cancel As Integer, UnloadMode As Integer)
If Not mUnsaved Then Exit Sub
On Error Resume Next
Select Case MsgBox("Save the stock before the desk closes?", vbYesNoCancel + vbQuestion)
	Case vbYes: SaveStock mStockFile
	Case vbCancel
	Cancel = True
End Select
If Err.Number <> 0 Then Debug.Print "Unload: " & Err.Description
End Sub
