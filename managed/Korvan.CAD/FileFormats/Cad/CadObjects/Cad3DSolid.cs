using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A 3D solid.</summary>
[CadObject("3DSOLID", Subclass = "AcDbModelerGeometry")]
[CadBits("ExchangeModeler()", "2007+ H")]
public partial class Cad3DSolid : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad3DSolid()
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
