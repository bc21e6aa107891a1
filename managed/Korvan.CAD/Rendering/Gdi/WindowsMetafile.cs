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
        bool isEnhanced = data.Length > SignatureAt + 4
            && BinaryPrimitives.ReadUInt32LittleEndian(data.AsSpan(SignatureAt)) == Signature;
        return (isEnhanced ? EmfPlayer.Play(data, target) : WmfPlayer.Play(data, target)) > 0;
    }
}
