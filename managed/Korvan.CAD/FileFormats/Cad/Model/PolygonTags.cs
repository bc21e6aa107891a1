using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Reads an MPOLYGON as the hatch that fills it: the tags are those of a hatch, but group code 71 is that of the fill,
/// which has a colour of its own in group code 63.
/// </summary>
internal sealed class PolygonTags : FieldReader
{
    internal const string EntityName = "MPOLYGON";

    private const string OwnSubclass = "AcDbMPolygon";
    private const int Version = 70;
    private const int SolidFill = 71;
    private const int FillColor = 63;

    private readonly CadCodeValue[] _tags;
    private int _at = -1;

    private PolygonTags(CadCodeValue[] tags) => _tags = tags;

    private CadCodeValue Tag => _tags[_at];

    internal static CadHatch Read(KeptTags kept)
    {
        var hatch = new CadHatch { SolidFillFlag = 0 };
        var reader = new PolygonTags([.. kept.Of(OwnSubclass)]);
        reader.EnterSubclass("AcDbHatch");
        while (reader.Next())
        {
            switch (reader.Code)
            {
                case Version:
                    break;
                case SolidFill:
                    hatch.SolidFillFlag = reader.GetShort();
                    break;
                case FillColor when hatch.GradientStops.Count == 0:
                    hatch.StoredColor = reader.GetShort();
                    break;
                default:
                    hatch.ReadField(reader.Code, reader);
                    break;
            }
        }

        return hatch;
    }

    internal override bool Next()
    {
        if (_at + 1 >= _tags.Length)
        {
            return false;
        }

        Code = _tags[++_at].Attribute;
        return true;
    }

    internal override void Unread() => _at--;

    internal override double GetDouble() =>
        double.TryParse(Tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

    internal override double GetAngle() => GetDouble();

    internal override int GetInt() => (int)System.Math.Clamp(GetDouble(), int.MinValue, int.MaxValue);

    internal override short GetShort() => (short)System.Math.Clamp(GetDouble(), short.MinValue, short.MaxValue);

    internal override long GetLong() => GetInt();

    internal override string GetString() => Tag.Value;

    internal override string GetName() => Tag.Value.Trim();

    internal override ulong GetHandle() => HandleText.TryParse(Tag.Value, out ulong handle) ? handle : 0;

    internal override string GetHandleText() => Tag.Value;

    // Lists grow by what follows, not by what is announced.
    internal override int GetCount() => System.Math.Clamp(GetInt(), 0, _tags.Length);

    internal override byte[] AppendBinary(byte[] before) => before;

    internal override CadCodeValue ToCodeValue() => Tag;

    internal override ImageLoadException BadValue(string cause) => new($"The MPOLYGON has a bad value: {cause}.");
}
