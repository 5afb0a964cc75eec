unit Wind;

interface

const
  AirDensity = 1.225;  { kg per cubic metre, at sea level }

function Gust(Mean, Factor: Double): Double;

implementation

function Gust(Mean, Factor: Double): Double;
begin
  Result := Mean * Factor;
end;

end.
