using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>A GIF that giflib has open for reading.</summary>
internal sealed unsafe class GifReadHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    public ref Gif.File File => ref *(Gif.File*)handle;

    protected override bool ReleaseHandle() => Gif.CloseRead(handle, null) == Gif.Ok;
}

/// <summary>A GIF that giflib has open for writing; closing it writes the trailer.</summary>
internal sealed unsafe class GifWriteHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    public ref Gif.File File => ref *(Gif.File*)handle;

    protected override bool ReleaseHandle() => Gif.CloseWrite(handle, null) == Gif.Ok;
}

/// <summary>A colour table that giflib allocated.</summary>
internal sealed class GifColorMapHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle()
    {
        Gif.FreeMap(handle);
        return true;
    }
}
