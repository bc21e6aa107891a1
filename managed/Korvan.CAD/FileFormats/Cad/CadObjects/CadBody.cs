using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A body of the solid modeler.</summary>
[CadObject("BODY", Subclass = "AcDbModelerGeometry")]
[CadBits("ExchangeModeler()")]
public partial class CadBody : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBody()
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
