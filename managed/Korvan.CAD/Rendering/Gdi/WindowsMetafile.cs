using System;
using System.Buffers.Binary;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>Draws metafiles of Windows, plain (WMF) or enhanced (EMF), into the unit square of a target.</summary>
internal static class WindowsMetafile
{
    private const int SignatureAt = 40;
    private const uint Signature = 0x464D4520;

    /// <summary>Draws a metafile.</summary>
    /// <returns>Whether it made anything; one whose drawing is in comments of later programs alone does not.</returns>
    internal static bool TryDraw(byte[] data, GdiTarget target)
    {
        return (IsEnhanced(data) ? EmfPlayer.Play(data, target) : WmfPlayer.Play(data, target)) > 0;
    }

    /// <summary>Determines whether an enhanced metafile draws in EMF+ records alone ([MS-EMFPLUS] 2.3), without those
    /// for programs that do not know them.</summary>
    internal static bool HasOnlyPlusRecords(byte[] data)
    {
        const int comment = 70, identifierAt = 12, recordHeader = 8;
        const uint plus = 0x2B464D45;
        bool isFound = false;
        for (int at = 0; IsEnhanced(data) && at + recordHeader <= data.Length;)
        {
            Budget.Step();
            int type = BinaryPrimitives.ReadInt32LittleEndian(data.AsSpan(at));
            int length = BinaryPrimitives.ReadInt32LittleEndian(data.AsSpan(at + 4));
            if (length < recordHeader || length > data.Length - at)
            {
                break;
            }

            isFound |= type == comment && length >= identifierAt + 4
                && BinaryPrimitives.ReadUInt32LittleEndian(data.AsSpan(at + identifierAt)) == plus;
            at += length;
        }

        return isFound;
    }

    private static bool IsEnhanced(byte[] data) => data.Length > SignatureAt + 4
        && BinaryPrimitives.ReadUInt32LittleEndian(data.AsSpan(SignatureAt)) == Signature;
}
