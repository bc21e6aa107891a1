using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A 3D solid.</summary>
[CadObject("3DSOLID", Subclass = "AcDbModelerGeometry")]
[CadBits("ExchangeModeler()", "2007+ ExchangeHistory()")]
public partial class Cad3DSolid : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad3DSolid()
    {
    }

    /// <summary>Gets or sets how the solid was made; null where files do not tell.</summary>
    [CadPart]
    [CadSubclass("AcDb3dSolid")]
    internal SolidHistory? History { get; set; }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = ReadAcis(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        ExchangeAcis(fields);
    }

    private void ExchangeHistory(BitExchange fields)
    {
        ulong handle = HandleText.TryParse(History?.Handle ?? "", out ulong known) ? known : 0;
        handle = fields.Handle(HandleRole.HardOwner, handle);
        if (fields.IsReading)
        {
            History = handle == 0 ? null : new SolidHistory { Handle = HandleText.Format(handle) };
        }
    }
}
