using System.Runtime.InteropServices;
using Korvan.CAD;

namespace Korvan.WrpGen.Interop;

/// <summary>Begins and ends what the library does while a program starts.</summary>
public static class WarmUpHost
{
    /// <summary>Begins it, after the callbacks of the bridge are set.</summary>
    [UnmanagedCallersOnly]
    public static void call_Start() => WarmUp.Start();

    /// <summary>Ends it before the process does.</summary>
    [UnmanagedCallersOnly]
    public static void call_Stop() => WarmUp.Stop();
}
