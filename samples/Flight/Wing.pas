unit Wing;

interface

type
  { A wing, as far as lift is concerned. }
  TWing = class
  private
    FArea: Double;         { square metres }
    FCoefficient: Double;  { lift coefficient, no unit }
  public
    constructor Create(Area, Coefficient: Double);
    function Lift(Density, Speed: Double): Double;
  end;

implementation

constructor TWing.Create(Area, Coefficient: Double);
begin
  FArea := Area;
  FCoefficient := Coefficient;
end;

{ In newtons; Density in kg per cubic metre, Speed in metres per second. }
function TWing.Lift(Density, Speed: Double): Double;
begin
  Result := 0.5 * Density * Speed * Speed * FArea * FCoefficient;
end;

end.
