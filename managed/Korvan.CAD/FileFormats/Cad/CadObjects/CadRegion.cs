using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat region.</summary>
[CadObject("REGION", Subclass = "AcDbModelerGeometry")]
[CadBits("ExchangeModeler()")]
public partial class CadRegion : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRegion()
    {
    }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = ReadAcis(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        ExchangeAcis(fields);
    }
}
