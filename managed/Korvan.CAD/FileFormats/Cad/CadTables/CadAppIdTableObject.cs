using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A program that may attach extended data.</summary>
[CadObject("APPID", Subclass = "AcDbRegAppTableRecord")]
[CadBits("ExchangeRecord()", "RC")]
public partial class CadAppIdTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAppIdTableObject()
    {
    }
}
