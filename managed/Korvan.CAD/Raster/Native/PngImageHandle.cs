using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The state of libpng's simplified reader.</summary>
internal sealed unsafe class PngImageHandle : SafeHandle
{
    internal PngImageHandle()
        : base(0, ownsHandle: true)
    {
        SetHandle((nint)NativeMemory.AllocZeroed((nuint)sizeof(Png.State)));
        State.Version = Png.Version;
    }

    public override bool IsInvalid => handle == 0;

    /// <summary>Gets the state; it is valid as long as the handle is open.</summary>
    internal ref Png.State State => ref *(Png.State*)handle;

    protected override bool ReleaseHandle()
    {
        Png.Free(handle); // does nothing where libpng freed its part after a failure
        NativeMemory.Free((void*)handle);
        return true;
    }
}
