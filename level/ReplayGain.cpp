#include "level/ReplayGain.h"

#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

// Every multiply and add rounds on its own, as written: a fused multiply-add would give
// other bits on processors that have one. (GCC fuses only where the target has FMA, which
// none of the functions here asks for.)
#if defined(__clang__)
#pragma clang fp contract(off)
#endif

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

namespace {

// The published equal-loudness filters. The rows are the Yule-Walker numerator and
// denominator, then the Butterworth numerator and denominator.
//
// Rates without a row here are resampled to 48 kHz first. That includes 64, 88.2 and
// 96 kHz: the rows in circulation for them do not agree with the others (at 96 kHz a
// 2 kHz tone reads 1.3 dB louder than the same tone at 48 kHz, and the 88.2 kHz row has a
// denominator copied from another rate), and the reference analysis itself measures
// those rates through its lower-rate filters.
const LoudnessFilter kFilters[] = {
    {48000,
     {0.03857599435200, -0.02160367184185, -0.00123395316851, -0.00009291677959, -0.01655260341619,
      0.02161526843274, -0.02074045215285, 0.00594298065125, 0.00306428023191, 0.00012025322027,
      0.00288463683916},
     {1.00000000000000, -3.84664617118067, 7.81501653005538, -11.34170355132042, 13.05504219327545,
      -12.28759895145294, 9.48293806319790, -5.87257861775999, 2.75465861874613, -0.86984376593551,
      0.13919314567432},
     {0.98621192462708, -1.97242384925416, 0.98621192462708},
     {1.00000000000000, -1.97223372919527, 0.97261396931306}},
    {44100,
     {0.05418656406430, -0.02911007808948, -0.00848709379851, -0.00851165645469, -0.00834990904936,
      0.02245293253339, -0.02596338512915, 0.01624864962975, -0.00240879051584, 0.00674613682247,
      -0.00187763777362},
     {1.00000000000000, -3.47845948550071, 6.36317777566148, -8.54751527471874, 9.47693607801280,
      -8.81498681370155, 6.85401540936998, -4.39470996079559, 2.19611684890774, -0.75104302451432,
      0.13149317958808},
     {0.98500175787242, -1.97000351574484, 0.98500175787242},
     {1.00000000000000, -1.96977855582618, 0.97022847566350}},
    {37800,
     {0.10296717174470, -0.04877975583256, -0.02878009075237, -0.03519509188311, 0.02888717172493,
      -0.00609872684844, 0.00209851217112, 0.00911704668543, 0.01154404718589, -0.00630293688700,
      0.00107527155228},
     {1.00000000000000, -2.64848054923531, 3.58406058405771, -3.83794914179161, 3.90142345804575,
      -3.50179818637243, 2.67085284083076, -1.82581142372418, 1.09530368139801, -0.47689017820395,
      0.11171431535905},
     {0.98252400815195, -1.96504801630391, 0.98252400815195},
     {1.00000000000000, -1.96474258269041, 0.96535344991740}},
    {36000,
     {0.11572297028613, -0.04120916051252, -0.04977731768022, -0.01047308680426, 0.00750863219157,
      0.00055507694408, 0.00140344192886, 0.01286095246036, 0.00998223033885, -0.00725013810661,
      0.00326503346879},
     {1.00000000000000, -2.43606802820871, 3.01907406973844, -2.90372016038192, 2.67947188094303,
      -2.17606479220391, 1.44912956803015, -0.87785765549050, 0.53592202672557, -0.26469344817509,
      0.07495878059717},
     {0.98165826840326, -1.96331653680652, 0.98165826840326},
     {1.00000000000000, -1.96298008938934, 0.96365298422371}},
    {32000,
     {0.15457299681924, -0.09331049056315, -0.06247880153653, 0.02163541888798, -0.05588393329856,
      0.04781476674921, 0.00222312597743, 0.03174092540049, -0.01390589421898, 0.00651420667831,
      -0.00881362733839},
     {1.00000000000000, -2.37898834973084, 2.84868151156327, -2.64577170229825, 2.23697657451713,
      -1.67148153367602, 1.00595954808547, -0.45953458054983, 0.16378164858596, -0.05032077717131,
      0.02347897407020},
     {0.97938932735214, -1.95877865470428, 0.97938932735214},
     {1.00000000000000, -1.95835380975398, 0.95920349965459}},
    {28000,
     {0.23882392323383, -0.22007791534089, -0.06014581950332, 0.05004458058021, -0.03293111254977,
      0.02348678189717, 0.04290549799671, -0.00938141862174, 0.00015095146303, -0.00712601540885,
      -0.00626520210162},
     {1.00000000000000, -2.06894080899139, 1.76944699577212, -0.81404732584187, 0.25418286850232,
      -0.30340791669762, 0.35616884070937, -0.14967310591258, -0.07024154183279, 0.11078404345174,
      -0.03551838002425},
     {0.97647981663949, -1.95295963327897, 0.97647981663949},
     {1.00000000000000, -1.95240635772520, 0.95351290883275}},
    {24000,
     {0.30296907319327, -0.22613988682123, -0.08587323730772, 0.03282930172664, -0.00915702933434,
      -0.02364141202522, -0.00584456039913, 0.06276101321749, -0.00000828086748, 0.00205861885564,
      -0.02950134983287},
     {1.00000000000000, -1.61273165137247, 1.07977492259970, -0.25656257754070, -0.16276719120440,
      -0.22638893773906, 0.39120800788284, -0.22138138954925, 0.04500235387352, 0.02005851806501,
      0.00302439095741},
     {0.97531843204928, -1.95063686409857, 0.97531843204928},
     {1.00000000000000, -1.95002759149878, 0.95124613669835}},
    {22050,
     {0.33642304856132, -0.25572241425570, -0.11828570177555, 0.11921148675203, -0.07834489609479,
      -0.00469977914380, -0.00589500224440, 0.05724228140351, 0.00832043980773, -0.01635381384540,
      -0.01760176568150},
     {1.00000000000000, -1.49858979367799, 0.87350271418188, 0.12205022308084, -0.80774944671438,
      0.47854794562326, -0.12453458140019, -0.04067510197014, 0.08333755284107, -0.04237348025746,
      0.02977207319925},
     {0.97316523498161, -1.94633046996323, 0.97316523498161},
     {1.00000000000000, -1.94561023566527, 0.94705070426118}},
    {18900,
     {0.38412657295385, -0.44533729608120, 0.20426638066221, -0.28031676047946, 0.31484202614802,
      -0.26078311203207, 0.12925201224848, -0.01141164696062, 0.03036522115769, -0.03776339305406,
      0.00692036603586},
     {1.00000000000000, -1.74403915585708, 1.96686095832499, -2.10081452941881, 1.90753918182846,
      -1.83814263754422, 1.36971352214969, -0.77883609116398, 0.39266422457649, -0.12529383592986,
      0.05424760697665},
     {0.96535326815829, -1.93070653631658, 0.96535326815829},
     {1.00000000000000, -1.92950577983524, 0.93190729279793}},
    {16000,
     {0.44915256608450, -0.14351757464547, -0.22784394429749, -0.01419140100551, 0.04078262797139,
      -0.12398163381748, 0.04097565135648, 0.10478503600251, -0.01863887810927, -0.03193428438915,
      0.00541907748707},
     {1.00000000000000, -0.62820619233671, 0.29661783706366, -0.37256372942400, 0.00213767857124,
      -0.42029820170918, 0.22199650564824, 0.00613424350682, 0.06747620744683, 0.05784820375801,
      0.03222754072173},
     {0.96454515552826, -1.92909031105652, 0.96454515552826},
     {1.00000000000000, -1.92783286977036, 0.93034775234268}},
    {12000,
     {0.56619470757641, -0.75464456939302, 0.16242137742230, 0.16744243493672, -0.18901604199609,
      0.30931782841830, -0.27562961986224, 0.00647310677246, 0.08647503780351, -0.03788984554840,
      -0.00588215443421},
     {1.00000000000000, -1.04800335126349, 0.29156311971249, -0.26806001042947, 0.00819999645858,
      0.45054734505008, -0.33032403314006, 0.06739368333110, -0.04784254229033, 0.01639907836189,
      0.01807364323573},
     {0.96009142950541, -1.92018285901082, 0.96009142950541},
     {1.00000000000000, -1.91858953033784, 0.92177618768381}},
    {11025,
     {0.58100494960553, -0.53174909058578, -0.14289799034253, 0.17520704835522, 0.02377945217615,
      0.15558449135573, -0.25344790059353, 0.01628462406333, 0.06920467763959, -0.03721611395801,
      -0.00749618797172},
     {1.00000000000000, -0.51035327095184, -0.31863563325245, -0.20256413484477, 0.14728154134330,
      0.38952639978999, -0.23313271880868, -0.05246019024463, -0.02505961724053, 0.02442357316099,
      0.01818801111503},
     {0.95856916599601, -1.91713833199203, 0.95856916599601},
     {1.00000000000000, -1.91542108074780, 0.91885558323625}},
    {8000,
     {0.53648789255105, -0.42163034350696, -0.00275953611929, 0.04267842219415, -0.10214864179676,
      0.14590772289388, -0.02459864859345, -0.11202315195388, -0.04060034127000, 0.04788665548180,
      -0.02217936801134},
     {1.00000000000000, -0.25049871956020, -0.43193942311114, -0.03424681017675, -0.04678328784242,
      0.26408300200955, 0.15113130533216, -0.17556493366449, -0.18823009262115, 0.05477720428674,
      0.04704409688120},
     {0.94597685600279, -1.89195371200558, 0.94597685600279},
     {1.00000000000000, -1.88903307939452, 0.89487434461664}},
};

constexpr int kResampleRate = 48000;
// Rates the resampler is asked to bridge: beyond these a damaged header is more likely
// than real audio, and the ratio would make the resampled stream absurdly long.
constexpr int kLowestRate = 1000;
constexpr int kHighestRate = 1536000;
constexpr size_t kHistogramBins = 12000;  // 0 to 120 dB in 0.01 dB steps
constexpr double kPercentile = 0.95;

// Frames gathered before the filters run: a batch is what the filter thread takes at a
// time (1 MiB for stereo), enough work to be worth a hand-over.
constexpr size_t kBatchFrames = 65536;

// The past inputs that the filters reach back to: a batch carries them in front of its
// frames, so that the numerator of the first frames reads them in place.
constexpr size_t kHistory = 10;

// One channel's filter memory.
struct ChannelMemory {
  double x[10] = {};  // past inputs, oldest first
  double y[10] = {};  // past Yule-Walker outputs, newest first
  double z[2] = {};   // past Butterworth outputs, newest first
  double sum = 0;     // squares of the running block
  std::vector<double> fir;  // the Yule-Walker numerator's part of each output
};

// Two lanes, one per channel of a stereo stream: every operation is done lane by lane, in
// double precision, so a lane gives the bits of the scalar loop on its channel.
typedef double Lanes __attribute__((vector_size(16)));

// Both channels' filter memory, side by side (left in lane 0).
struct PairMemory {
  Lanes x[10] = {};  // past inputs, oldest first
  Lanes y[10] = {};  // past Yule-Walker outputs, newest first
  Lanes z[2] = {};   // past Butterworth outputs, newest first
  Lanes sum = {};    // squares of the running block
  std::vector<Lanes> fir;
};

// The numerator of the Yule-Walker filter over a span: fir[i] from in[i + 10] (the sample)
// back to in[i] (ten samples earlier). It has no feedback, so it runs four samples at a
// time; the sums are grouped exactly as in the plain loop, so both give the same bits.
// `x` is the newest sample, and the one k samples earlier is at x[-k * stride].
inline double FirAt(const double* b, const double* x, size_t stride) {
  const auto at = [x, stride](size_t k) { return *(x - k * stride); };
  return ((at(0) * b[0] + at(1) * b[1]) + (at(2) * b[2] + at(3) * b[3])) +
         ((at(4) * b[4] + at(5) * b[5]) + (at(6) * b[6] + at(7) * b[7])) +
         ((at(8) * b[8] + at(9) * b[9]) + at(10) * b[10]);
}

#if defined(__x86_64__)
// AVX without FMA on purpose: a fused multiply-add rounds once where the plain loop
// rounds twice, and the results must not depend on the processor. `in` holds `lanes`
// interleaved channels (1 or 2); a register takes four values of any lane alike.
__attribute__((target("avx"))) size_t FirAvx(const LoudnessFilter& f, const double* in, size_t values, size_t lanes,
                                             double* fir) {
  __m256d b[11];
  for (int k = 0; k < 11; ++k) b[k] = _mm256_set1_pd(f.b[k]);
  size_t i = 0;
  for (; i + 4 <= values; i += 4) {
    const double* x = in + i + 10 * lanes;
    __m256d t[11];
    for (int k = 0; k < 11; ++k) t[k] = _mm256_mul_pd(_mm256_loadu_pd(x - k * lanes), b[k]);
    const __m256d s0 = _mm256_add_pd(_mm256_add_pd(t[0], t[1]), _mm256_add_pd(t[2], t[3]));
    const __m256d s1 = _mm256_add_pd(_mm256_add_pd(t[4], t[5]), _mm256_add_pd(t[6], t[7]));
    const __m256d s2 = _mm256_add_pd(_mm256_add_pd(t[8], t[9]), t[10]);
    _mm256_storeu_pd(fir + i, _mm256_add_pd(_mm256_add_pd(s0, s1), s2));
  }
  return i;
}

bool HaveAvx() {
  static const bool avx = __builtin_cpu_supports("avx");
  return avx;
}
#endif

// The feedback part of both filters over a span, one output at a time. The feedback terms
// of the most recent output are added last, so that the chain from one sample to the next
// is one multiply and one subtraction long.
template <typename T>
__attribute__((always_inline)) inline void Recursion(const LoudnessFilter& f, const T* fir, size_t n, T y[10], T z[2],
                                                     T& sum) {
  const double a1 = f.a[1], a2 = f.a[2], a3 = f.a[3], a4 = f.a[4], a5 = f.a[5], a6 = f.a[6], a7 = f.a[7],
               a8 = f.a[8], a9 = f.a[9], a10 = f.a[10];
  const double c0 = f.bb[0], c1 = f.bb[1], c2 = f.bb[2], d1 = f.ab[1], d2 = f.ab[2];
  T y1 = y[0], y2 = y[1], y3 = y[2], y4 = y[3], y5 = y[4], y6 = y[5], y7 = y[6], y8 = y[7], y9 = y[8], y10 = y[9];
  T z1 = z[0], z2 = z[1];
  T s = sum;
  for (size_t i = 0; i < n; ++i) {
    const T back = ((y2 * a2 + y3 * a3) + (y4 * a4 + y5 * a5)) + ((y6 * a6 + y7 * a7) + (y8 * a8 + y9 * a9)) +
                   y10 * a10;
    const T y0 = (fir[i] - back) - y1 * a1;
    const T z0 = (y0 * c0 + (y1 * c1 + y2 * c2 - z2 * d2)) - z1 * d1;
    s += z0 * z0;
    y10 = y9; y9 = y8; y8 = y7; y7 = y6; y6 = y5; y5 = y4; y4 = y3; y3 = y2; y2 = y1; y1 = y0;
    z2 = z1; z1 = z0;
  }
  y[0] = y1, y[1] = y2, y[2] = y3, y[3] = y4, y[4] = y5, y[5] = y6, y[6] = y7, y[7] = y8, y[8] = y9, y[9] = y10;
  z[0] = z1, z[1] = z2;
  sum = s;
}

void RecursionOne(const LoudnessFilter& f, const double* fir, size_t n, double y[10], double z[2], double& sum) {
  Recursion(f, fir, n, y, z, sum);
}

void RecursionPairPlain(const LoudnessFilter& f, const Lanes* fir, size_t n, Lanes y[10], Lanes z[2], Lanes& sum) {
  Recursion(f, fir, n, y, z, sum);
}

#if defined(__x86_64__)
// The same loop with the 32 vector registers of AVX-512: the 28 values it keeps then stay
// in registers instead of going to memory and back for every sample.
__attribute__((target("avx512f,avx512vl"))) void RecursionPairWide(const LoudnessFilter& f, const Lanes* fir,
                                                                   size_t n, Lanes y[10], Lanes z[2], Lanes& sum) {
  Recursion(f, fir, n, y, z, sum);
}
#endif

void RecursionPair(const LoudnessFilter& f, const Lanes* fir, size_t n, Lanes y[10], Lanes z[2], Lanes& sum) {
#if defined(__x86_64__)
  static const bool wide = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl");
  if (wide) return RecursionPairWide(f, fir, n, y, z, sum);
#endif
  RecursionPairPlain(f, fir, n, y, z, sum);
}

// The numerator over the `n` frames of a batch that sit behind its kHistory frames of
// past inputs (filled in here from the memory `x`, which then takes the batch's last ones).
void Numerator(const LoudnessFilter& f, double* batch, size_t n, size_t lanes, double* x, double* fir) {
  std::memcpy(batch, x, kHistory * lanes * sizeof(double));
  const size_t values = n * lanes;
  size_t done = 0;
#if defined(__x86_64__)
  if (HaveAvx()) done = FirAvx(f, batch, values, lanes, fir);
#endif
  for (size_t i = done; i < values; ++i) fir[i] = FirAt(f.b, batch + i + kHistory * lanes, lanes);
  std::memcpy(x, batch + values, kHistory * lanes * sizeof(double));
}

// Histogram slot of a block: hundredths of a dB of its mean square, cut towards zero.
size_t Slot(double sum, uint32_t frames) {
  const double val = 1000.0 * std::log10(sum / frames + 1e-37);
  if (!(val >= 0)) return 0;  // also NaN
  if (val >= double(kHistogramBins - 1)) return kHistogramBins - 1;
  return size_t(val);
}

// Runs jobs on a second thread, one at a time: the filters of one batch while the caller
// gathers the next.
class FilterThread {
 public:
  ~FilterThread() {
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_quit = true;
    }
    m_cv.notify_all();
    if (m_thread.joinable()) m_thread.join();
  }
  // False when no thread could be started.
  bool Start() {
    try {
      m_thread = std::thread([this] { Loop(); });
    } catch (const std::system_error&) {
      return false;
    }
    return true;
  }
  void Post(std::function<void()> job) {
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_job = std::move(job);
      m_pending = true;
    }
    m_cv.notify_all();
  }
  void Wait() {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_cv.wait(lock, [this] { return !m_pending; });
  }

 private:
  void Loop() {
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
      m_cv.wait(lock, [this] { return m_pending || m_quit; });
      if (m_pending) {
        lock.unlock();
        m_job();
        lock.lock();
        m_pending = false;
        m_cv.notify_all();
        continue;
      }
      return;
    }
  }

  std::thread m_thread;
  std::mutex m_mutex;
  std::condition_variable m_cv;
  std::function<void()> m_job;
  bool m_pending = false;
  bool m_quit = false;
};

}  // namespace

struct ReplayGainAnalyser::Memory {
  const LoudnessFilter* filter = nullptr;
  int channels = 0;
  uint32_t blockLength = 0;
  uint32_t blockFill = 0;        // frames in the running block
  uint64_t framesFiltered = 0;
  ChannelMemory mono;
  PairMemory pair;
  std::vector<uint32_t> histogram[2];
  // Two batches: one being gathered, the other with the filter thread. Each holds room for
  // kHistory frames in front of its kBatchFrames.
  std::vector<double> batch[2];
  int gathering = 0;
  size_t gathered = 0;           // frames in the batch being gathered
  bool ownThread = false;        // the filters may run on a thread of their own
  std::unique_ptr<FilterThread> thread;  // last: it ends before the batches go

  double SumOf(int c) const { return channels == 2 ? pair.sum[c] : mono.sum; }
  void ClearSums() {
    pair.sum = Lanes{};
    mono.sum = 0;
  }

  // The filters over the `frames` frames of a batch, then the squares block by block.
  void Analyse(double* batch, size_t frames) {
    size_t at = 0;
    if (channels == 2) {
      pair.fir.resize(kBatchFrames);
      Numerator(*filter, batch, frames, 2, reinterpret_cast<double*>(pair.x), reinterpret_cast<double*>(pair.fir.data()));
    } else {
      mono.fir.resize(kBatchFrames);
      Numerator(*filter, batch, frames, 1, mono.x, mono.fir.data());
    }
    uint32_t fill = blockFill;
    framesFiltered += frames;
    while (frames > 0) {
      const size_t span = std::min<size_t>(frames, blockLength - fill);
      if (channels == 2)
        RecursionPair(*filter, pair.fir.data() + at, span, pair.y, pair.z, pair.sum);
      else
        RecursionOne(*filter, mono.fir.data() + at, span, mono.y, mono.z, mono.sum);
      at += span;
      frames -= span;
      fill += uint32_t(span);
      if (fill == blockLength) {
        for (int c = 0; c < channels; ++c) histogram[c][Slot(SumOf(c), fill)]++;
        ClearSums();
        fill = 0;
      }
    }
    blockFill = fill;
  }

  // Hands the gathered batch to the filters: to the thread when there is one, which takes
  // it while the next is gathered.
  void Flush() {
    if (gathered == 0) return;
    if (!thread && ownThread) {
      thread = std::make_unique<FilterThread>();
      if (!thread->Start()) {
        thread.reset();
        ownThread = false;
      }
    }
    if (!thread) {
      Analyse(batch[gathering].data(), gathered);
      gathered = 0;
      return;
    }
    thread->Wait();
    double* samples = batch[gathering].data();
    const size_t frames = gathered;
    thread->Post([this, samples, frames] { Analyse(samples, frames); });
    gathering ^= 1;
    gathered = 0;
  }

  // Room for `frames` more frames in the batch being gathered (at most what is free).
  double* Room(size_t& frames) {
    frames = std::min(frames, kBatchFrames - gathered);
    return batch[gathering].data() + (kHistory + gathered) * size_t(channels);
  }
  void Gathered(size_t frames) {
    gathered += frames;
    if (gathered == kBatchFrames) Flush();
  }
};

struct ReplayGainAnalyser::Resampler {
  SwrContext* swr = nullptr;
  std::vector<double> out;
  ~Resampler() { swr_free(&swr); }
};

const LoudnessFilter* FindLoudnessFilter(int sampleRate) {
  for (const LoudnessFilter& f : kFilters)
    if (f.rate == sampleRate) return &f;
  return nullptr;
}

uint32_t LoudnessBlockLength(int sampleRate) { return uint32_t(std::ceil(sampleRate * 0.05)); }

ReplayGainAnalyser::ReplayGainAnalyser() = default;
ReplayGainAnalyser::~ReplayGainAnalyser() {
  if (m_state) m_state->thread.reset();
}

bool ReplayGainAnalyser::Init(int sampleRate, int channels, bool ownThread) {
  if (m_state) m_state->thread.reset();
  m_resampler.reset();
  m_state.reset();
  m_channels = 0;
  m_framesIn = 0;
  m_finished = false;
  m_peak[0] = m_peak[1] = 0;
  if (sampleRate < kLowestRate || sampleRate > kHighestRate || channels < 1 || channels > 2) return false;

  int filterRate = sampleRate;
  const LoudnessFilter* filter = FindLoudnessFilter(sampleRate);
  if (!filter) {
    // No table for this rate: the channels are resampled to 48 kHz and measured there.
    auto r = std::make_unique<Resampler>();
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    int rc = swr_alloc_set_opts2(&r->swr, &layout, AV_SAMPLE_FMT_DBL, kResampleRate, &layout,
                                 AV_SAMPLE_FMT_DBL, sampleRate, 0, nullptr);
    av_channel_layout_uninit(&layout);
    if (rc < 0 || !r->swr || swr_init(r->swr) < 0) return false;
    m_resampler = std::move(r);
    filterRate = kResampleRate;
    filter = FindLoudnessFilter(kResampleRate);
  }
  m_channels = channels;
  m_state = std::make_unique<Memory>();
  Memory& st = *m_state;
  st.filter = filter;
  st.channels = channels;
  st.blockLength = LoudnessBlockLength(filterRate);
  for (int c = 0; c < channels; ++c) st.histogram[c].assign(kHistogramBins, 0);
  st.ownThread = ownThread && std::thread::hardware_concurrency() > 1;
  st.batch[0].resize((kHistory + kBatchFrames) * size_t(channels));
  if (st.ownThread) st.batch[1].resize((kHistory + kBatchFrames) * size_t(channels));
  return true;
}

namespace {

// Largest magnitudes of the channels of interleaved frames.
void TakePeaks(const double* s, size_t frames, int channels, double peak[2]) {
#if defined(__x86_64__)
  if (channels == 2) {
    // A lane per channel. MAXPD keeps the running peak on a tie, as std::max does; there
    // are no NaNs here (the scale takes them out).
    const __m128d magnitude = _mm_castsi128_pd(_mm_set1_epi64x(0x7fffffffffffffff));
    __m128d m = _mm_setr_pd(peak[0], peak[1]);
    for (size_t i = 0; i < frames; ++i) m = _mm_max_pd(_mm_and_pd(_mm_loadu_pd(s + 2 * i), magnitude), m);
    _mm_storel_pd(peak, m);
    _mm_storeh_pd(peak + 1, m);
    return;
  }
#endif
  if (channels == 2) {
    double l = peak[0], r = peak[1];
    for (size_t i = 0; i < frames; ++i) {
      l = std::max(l, std::fabs(s[2 * i]));
      r = std::max(r, std::fabs(s[2 * i + 1]));
    }
    peak[0] = l, peak[1] = r;
  } else {
    double m = peak[0];
    for (size_t i = 0; i < frames; ++i) m = std::max(m, std::fabs(s[i]));
    peak[0] = m;
  }
}

}  // namespace

void ReplayGainAnalyser::Process(const double* samples, size_t frames) {
  if (!m_channels || m_finished || frames == 0) return;
  TakePeaks(samples, frames, m_channels, m_peak);
  m_framesIn += frames;
  if (!m_resampler) {
    Gather(samples, frames);
    return;
  }
  Resampler& r = *m_resampler;
  const int outCap = swr_get_out_samples(r.swr, int(frames));
  if (outCap <= 0) return;
  r.out.resize(size_t(outCap) * m_channels);
  uint8_t* out[1] = {reinterpret_cast<uint8_t*>(r.out.data())};
  const uint8_t* in[1] = {reinterpret_cast<const uint8_t*>(samples)};
  const int got = swr_convert(r.swr, out, outCap, in, int(frames));
  if (got > 0) Gather(r.out.data(), size_t(got));
}

void ReplayGainAnalyser::ProcessPcm(const uint8_t* p, size_t frames, int channels, SampleKind kind) {
  if (!m_channels || m_finished || frames == 0 || channels < m_channels) return;
  const size_t frameBytes = size_t(channels) * SampleBytes(kind);
  Memory& st = *m_state;
  while (frames > 0) {
    size_t n = frames;
    if (m_resampler) {
      // Through the resampler's input: a piece at a time.
      n = std::min<size_t>(n, 4096);
      m_scratch.resize(n * size_t(m_channels));
      ToSixteenBitScale(p, n, channels, m_channels, kind, m_scratch.data());
      Process(m_scratch.data(), n);
    } else {
      // Straight into the batch.
      double* out = st.Room(n);
      ToSixteenBitScale(p, n, channels, m_channels, kind, out);
      TakePeaks(out, n, m_channels, m_peak);
      m_framesIn += n;
      st.Gathered(n);
    }
    p += n * frameBytes;
    frames -= n;
  }
}

void ReplayGainAnalyser::Gather(const double* samples, size_t frames) {
  Memory& st = *m_state;
  while (frames > 0) {
    size_t n = frames;
    double* out = st.Room(n);
    std::memcpy(out, samples, n * size_t(m_channels) * sizeof(double));
    samples += n * size_t(m_channels);
    frames -= n;
    st.Gathered(n);
  }
}

void ReplayGainAnalyser::Finish() {
  if (!m_channels || m_finished) return;
  if (m_resampler) {
    Resampler& r = *m_resampler;
    for (;;) {
      const int outCap = std::max(swr_get_out_samples(r.swr, 0), 0) + 64;
      r.out.resize(size_t(outCap) * m_channels);
      uint8_t* out[1] = {reinterpret_cast<uint8_t*>(r.out.data())};
      const int got = swr_convert(r.swr, out, outCap, nullptr, 0);
      if (got <= 0) break;
      Gather(r.out.data(), size_t(got));
    }
  }
  Memory& st = *m_state;
  st.Flush();
  st.thread.reset();
  // A sound shorter than one block is measured over what it has; otherwise the
  // incomplete last block is left out.
  if (st.framesFiltered < st.blockLength && st.blockFill > 0) {
    for (int c = 0; c < m_channels; ++c) st.histogram[c][Slot(st.SumOf(c), st.blockFill)]++;
    st.ClearSums();
    st.blockFill = 0;
  }
  m_finished = true;
}

bool ReplayGainAnalyser::Resampling() const { return m_resampler != nullptr; }

uint64_t ReplayGainAnalyser::Blocks(int channel) const {
  if (!m_state || channel >= m_channels) return 0;
  uint64_t n = 0;
  for (uint32_t v : m_state->histogram[channel]) n += v;
  return n;
}

double ReplayGainAnalyser::Gain(int channel) const {
  if (!m_state || channel >= m_channels) return kPinkReference;
  const std::vector<uint32_t>& h = m_state->histogram[channel];
  uint64_t blocks = 0;
  for (uint32_t v : h) blocks += v;
  if (blocks == 0) return kPinkReference;
  // The level that 5 percent of the blocks reach or pass, counted from the top. The count
  // is taken in single precision as the reference analysis takes it, so that 5 percent of
  // a whole multiple of 20 blocks stays a whole number (in double it would round up).
  const float top = float(blocks) * float(1.0 - kPercentile);
  int64_t upper = int64_t(std::ceil(top));
  size_t i = h.size();
  while (i-- > 0) {
    upper -= h[i];
    if (upper <= 0) break;
  }
  if (i == size_t(-1)) i = 0;
  return kPinkReference - double(i) / 100.0;
}
