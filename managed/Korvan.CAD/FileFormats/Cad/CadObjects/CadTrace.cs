using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line with width as a filled quadrilateral. The third and fourth corners are swapped: the boundary runs
/// 1, 2, 4, 3.</summary>
[CadFieldsOf(typeof(CadSolid))]
[CadObject("TRACE", Subclass = "AcDbTrace")]
[CadBits("BT Thickness", "ExchangeCorners()", "BE ExtrusionDirection")]
public partial class CadTrace : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTrace()
    {
    }

    // One elevation for all corners.
    private void ExchangeCorners(BitExchange fields) =>
        fields.FlatPoints(FirstPoint, SecondPoint, ThirdPoint, FourthPoint);
}
