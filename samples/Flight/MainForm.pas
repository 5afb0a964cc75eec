unit MainForm;

interface

uses
  Wing, Wind;

type
  TMainForm = class(TForm)
    LiftLabel: TLabel;
    SpeedEdit: TEdit;
    procedure SpeedEditChange(Sender: TObject);
  private
    FWing: TWing;
  end;

implementation

procedure TMainForm.SpeedEditChange(Sender: TObject);
var
  Speed: Double;
begin
  Speed := StrToFloatDef(SpeedEdit.Text, 0.0);
  LiftLabel.Caption := Format('%.1f N', [FWing.Lift(AirDensity, Speed)]);
end;

end.
