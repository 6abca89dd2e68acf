Attribute VB_Name = "modPrices"
Option Explicit
Option Compare Text

Private Const TAX_PERCENT As Double = 20
Public Const WORKSHOP_NAME = "Spoke & Saddle"

' Pence as the customer reads them, £12.50 or 85p
Public Function PriceText(ByVal pence As Currency) As String
If pence < 100 And pence >= 0 Then
PriceText = pence & "p"
ElseIf pence < 0 Then
        PriceText = "-£" & Format$(-pence / 100, "0.00")
    Else
	PriceText = "£" & Format$(pence / 100, "#,##0.00")
End If
End Function

Public Function TaxOn(ByVal pence As Currency) As Currency
	TaxOn = Int(pence * TAX_PERCENT / 100 + 0.5)
End Function

Public Function DiscountFor(ByVal pieces As Long, ByVal isTrade As Boolean, _
                  Optional ByVal customer As String) As Double
Rem Agreed with Mr. Okoro in March, the school is handled like a trade customer
Dim percent As Double
  Select Case pieces
	Case Is >= 100
	percent = 12.5
  Case 25 To 99
  If isTrade Then
  percent = 10
  Else
percent = 7.5
  End If
  Case 10 To 24: percent = 5
    Case Else
    percent = 0
  End Select

	If isTrade And _
  pieces < 10 And _
     percent = 0 Then
 percent = 2.5      ' trade never pays the full price
	End If
If InStr(customer, "School") > 0 Then If percent < 10 Then percent = 10
  DiscountFor = percent / 100
End Function

Public Function FinishText(ByVal finish As Integer) As String
' the oven's temperatures stand in the maker's leaflet
    Select Case finish
    Case 0: FinishText = "raw"
    Case 1: FinishText = "powder coat, 180 °C"
	Case 2
	FinishText = "enamel ""crème"", baked at 150 °C"
    Case Else
        FinishText = "finish no. " & finish
    End Select
End Function

Public Function PiecesAtPrice(ByVal money As Currency, ByVal pence As Currency) As Long
Dim left_ As Currency
left_ = money
Do
If left_ < pence Or pence <= 0 Then Exit Do
   left_ = left_ - pence: PiecesAtPrice = PiecesAtPrice + 1
Loop Until PiecesAtPrice = 9999
End Function
