using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The macros of a drawing.</summary>
[CadSequence]
[CadObject("VBA_PROJECT", Subclass = "AcDbVbaProject")]
[CadBits("ExchangeData()")]
public partial class CadVbaProject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadVbaProject()
    {
    }

    /// <summary>Gets or sets the compound file with the macros. Group code 310.</summary>
    public byte[] Data { get; set; } = [];

    partial void OnExchange(ObjectExchange fields)
    {
        fields.Int32(90, Data.Length);
        Data = fields.Binary(310, Data);
    }

    private void ExchangeData(BitExchange fields) => Data = fields.Block(Data);
}
