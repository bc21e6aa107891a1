using System;
using System.IO;
using System.Threading;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD;

/// <summary>
/// Converts a small drawing on another thread while a program starts. The first use of a method costs many times what
/// the second does, since it has to be found and bound, so that the first load and save of a process took thirty times
/// as long as the next ones.
/// </summary>
/// <remarks>
/// The drawing has no text: nothing here calls a shared library, as those read the environment, which the program may
/// change meanwhile. A fork and the end of the process wait for the thread.
/// </remarks>
internal static class WarmUp
{
    private const string Switch = "KORVAN_WARM_UP";
    private const string Resource = "Korvan.CAD.WarmUp.dxf";

    // The wrap library knows the thread by this name when the process is forked.
    private const string ThreadName = ".NET Warm-up";
    private const int LongestWait = 10_000; // milliseconds

    private static Thread? _thread;
    private static volatile bool _isStopped;

    /// <summary>Begins, unless there is only one processor, or the environment says that it shall not.</summary>
    internal static void Start()
    {
        if (_thread is not null || Environment.ProcessorCount < 2 || Environment.GetEnvironmentVariable(Switch) == "0")
        {
            return;
        }

        var thread = new Thread(Convert) { IsBackground = true, Name = ThreadName };
        try
        {
            thread.Start();
            _thread = thread;
        }
        catch (Exception e) when (e is OutOfMemoryException or ThreadStartException)
        {
            // A process that may have no more threads does without.
        }
    }

    /// <summary>Ends the conversion, if it still runs, and waits for its thread.</summary>
    internal static void Stop()
    {
        _isStopped = true;
        if (!ForkedProcess.IsChild)
        {
            _thread?.Join(LongestWait);
        }
    }

    private static void Convert()
    {
        try
        {
            using Budget.ThreadQuestion question = Budget.Ask(static () => _isStopped);
            using Stream source = typeof(WarmUp).Assembly.GetManifestResourceStream(Resource)!;
            using Image image = Image.Load(source);
            using var options = new PdfOptions { VectorRasterizationOptions = new CadRasterizationOptions() };
            using var output = new MemoryStream();
            image.Save(output, options);
        }
        catch (Exception)
        {
            // What is wrong here meets the first call of the program, too, which tells it.
        }
    }
}
