using System;
using System.Buffers.Binary;
using System.Text;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The colour space sRGB (IEC 61966-2-1) as a profile of version 2 (ISO 15076-1): primaries, adapted to D50,
/// and a curve.</summary>
internal static class SrgbProfile
{
    internal const string Name = "sRGB IEC61966-2.1";

    private const int HeaderSize = 128;
    private const int CurvePoints = 1024;

    /// <summary>Returns the profile.</summary>
    internal static byte[] Bytes()
    {
        byte[] curve = Curve();
        (string Tag, byte[] Data)[] tags =
        [
            ("desc", Description()), ("cprt", Text("No copyright, use freely")), ("wtpt", Xyz(0.9642, 1, 0.8249)),
            ("rXYZ", Xyz(0.43607, 0.22249, 0.01392)), ("gXYZ", Xyz(0.38515, 0.71687, 0.09708)),
            ("bXYZ", Xyz(0.14307, 0.06061, 0.71410)), ("rTRC", curve), ("gTRC", curve), ("bTRC", curve),
        ];
        int place = HeaderSize + 4 + (12 * tags.Length);
        int curveAt = 0;
        int size = place;
        var places = new int[tags.Length];
        for (int i = 0; i < tags.Length; i++)
        {
            bool shared = ReferenceEquals(tags[i].Data, curve) && curveAt > 0;
            places[i] = shared ? curveAt : size;
            size += shared ? 0 : (tags[i].Data.Length + 3) & ~3;
            curveAt = ReferenceEquals(tags[i].Data, curve) ? places[i] : curveAt;
        }

        var profile = new byte[size];
        WriteHeader(profile);
        Int(profile, HeaderSize, tags.Length);
        for (int i = 0; i < tags.Length; i++)
        {
            int entry = HeaderSize + 4 + (12 * i);
            Characters(profile, entry, tags[i].Tag);
            Int(profile, entry + 4, places[i]);
            Int(profile, entry + 8, tags[i].Data.Length);
            tags[i].Data.CopyTo(profile, places[i]);
        }

        return profile;
    }

    private static void WriteHeader(byte[] profile)
    {
        const int version = 0x0210_0000;
        Int(profile, 0, profile.Length);
        Int(profile, 8, version);
        Characters(profile, 12, "mntrRGB XYZ ");
        int[] date = [1999, 1, 1];
        for (int i = 0; i < date.Length; i++)
        {
            BinaryPrimitives.WriteUInt16BigEndian(profile.AsSpan(24 + (2 * i)), (ushort)date[i]);
        }

        Characters(profile, 36, "acsp");
        Xyz(0.9642, 1, 0.8249).AsSpan(8).CopyTo(profile.AsSpan(68));
    }

    private static byte[] Curve()
    {
        var curve = new byte[12 + (2 * CurvePoints)];
        Characters(curve, 0, "curv");
        Int(curve, 8, CurvePoints);
        for (int i = 0; i < CurvePoints; i++)
        {
            double v = i / (CurvePoints - 1.0);
            double linear = v <= 0.04045 ? v / 12.92 : Math.Pow((v + 0.055) / 1.055, 2.4);
            BinaryPrimitives.WriteUInt16BigEndian(curve.AsSpan(12 + (2 * i)), (ushort)Math.Round(linear * 65535));
        }

        return curve;
    }

    private static byte[] Description()
    {
        // After the name in ASCII, there are none in Unicode and in the script code of another platform.
        var data = new byte[12 + Name.Length + 1 + 8 + 3 + 67];
        Characters(data, 0, "desc");
        Int(data, 8, Name.Length + 1);
        Characters(data, 12, Name);
        return data;
    }

    private static byte[] Text(string text)
    {
        var data = new byte[8 + text.Length + 1];
        Characters(data, 0, "text");
        Characters(data, 8, text);
        return data;
    }

    private static byte[] Xyz(double x, double y, double z)
    {
        var data = new byte[20];
        Characters(data, 0, "XYZ ");
        Int(data, 8, (int)Math.Round(x * 65536));
        Int(data, 12, (int)Math.Round(y * 65536));
        Int(data, 16, (int)Math.Round(z * 65536));
        return data;
    }

    private static void Int(byte[] data, int at, int value) =>
        BinaryPrimitives.WriteInt32BigEndian(data.AsSpan(at), value);

    private static void Characters(byte[] data, int at, string text) =>
        Encoding.ASCII.GetBytes(text, data.AsSpan(at));
}
