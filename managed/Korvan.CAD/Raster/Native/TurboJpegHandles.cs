using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>A compressor or a decompressor of libjpeg-turbo.</summary>
internal sealed class TurboJpegHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle() => TurboJpeg.Destroy(handle) == 0;
}

/// <summary>A buffer that libjpeg-turbo allocated.</summary>
internal sealed unsafe class TurboJpegBufferHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    internal ReadOnlySpan<byte> Bytes(nuint size) => new((byte*)handle, checked((int)size));

    protected override bool ReleaseHandle()
    {
        TurboJpeg.Free(handle);
        return true;
    }
}
