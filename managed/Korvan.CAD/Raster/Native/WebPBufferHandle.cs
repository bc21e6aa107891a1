using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>A buffer that libwebp allocated.</summary>
internal sealed unsafe class WebPBufferHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    internal ReadOnlySpan<byte> Bytes(nuint size) => new((byte*)handle, checked((int)size));

    protected override bool ReleaseHandle()
    {
        WebP.Free(handle);
        return true;
    }
}
