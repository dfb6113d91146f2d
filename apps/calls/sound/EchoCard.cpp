#include "calls/sound/EchoCard.h"

#include "calls/sound/EchoLine.h"

#include <linphone++/linphone.hh>

#include <linphone/core.h>
#include <mediastreamer2/msfilter.h>
#include <mediastreamer2/mssndcard.h>
#include <mediastreamer2/msticker.h>
#include <string>

namespace {

/// The process has one call at a time, so there is one.
EchoLine &theLine()
{
    static EchoLine line;
    return line;
}

int setRate(MSFilter * /*filter*/, void *rate)
{
    theLine().setRate(*static_cast<int *>(rate));
    return 0;
}

int getRate(MSFilter * /*filter*/, void *rate)
{
    *static_cast<int *>(rate) = theLine().rate();
    return 0;
}

int setChannels(MSFilter * /*filter*/, void *channels)
{
    theLine().setChannels(*static_cast<int *>(channels));
    return 0;
}

int getChannels(MSFilter * /*filter*/, void *channels)
{
    *static_cast<int *>(channels) = theLine().channels();
    return 0;
}

MSFilterMethod methods[] = {{MS_FILTER_SET_SAMPLE_RATE, setRate},
                            {MS_FILTER_GET_SAMPLE_RATE, getRate},
                            {MS_FILTER_SET_NCHANNELS, setChannels},
                            {MS_FILTER_GET_NCHANNELS, getChannels},
                            {0, nullptr}};

void beginToHear(MSFilter * /*filter*/)
{
    theLine().clear();
}

void hear(MSFilter *filter)
{
    // Another thread may set the format in between.
    const std::size_t samples = theLine().samplesOfATick();
    const std::size_t bytes = samples * sizeof(int16_t);
    mblk_t *block = allocb(bytes, 0);
    theLine().take(reinterpret_cast<int16_t *>(block->b_wptr), samples);
    block->b_wptr += bytes;
    ms_queue_put(filter->outputs[0], block);
}

void play(MSFilter *filter)
{
    while (mblk_t *block = ms_queue_get(filter->inputs[0])) {
        theLine().put(reinterpret_cast<const int16_t *>(block->b_rptr),
                      std::size_t(block->b_wptr - block->b_rptr) / sizeof(int16_t));
        freemsg(block);
    }
}

MSFilterDesc describe(const char *name, const char *text, int inputs, int outputs)
{
    MSFilterDesc filter{};
    filter.id = MS_FILTER_PLUGIN_ID;
    filter.name = name;
    filter.text = text;
    filter.category = MS_FILTER_OTHER;
    filter.ninputs = inputs;
    filter.noutputs = outputs;
    filter.methods = methods;
    return filter;
}

MSFilter *makeMicrophone(MSSndCard *card)
{
    static MSFilterDesc filter = [] {
        MSFilterDesc microphone = describe("EchoMicrophone", "hears what was played", 0, 1);
        microphone.preprocess = beginToHear;
        microphone.process = hear;
        return microphone;
    }();
    return ms_factory_create_filter_from_desc(ms_snd_card_get_factory(card), &filter);
}

MSFilter *makeSpeaker(MSSndCard *card)
{
    static MSFilterDesc filter = [] {
        MSFilterDesc speaker = describe("EchoSpeaker", "plays to a microphone", 1, 0);
        speaker.process = play;
        return speaker;
    }();
    return ms_factory_create_filter_from_desc(ms_snd_card_get_factory(card), &filter);
}

MSSndCardDesc &theKind()
{
    static MSSndCardDesc kind = [] {
        MSSndCardDesc echo{};
        echo.driver_type = "Echo";
        echo.create_reader = makeMicrophone;
        echo.create_writer = makeSpeaker;
        return echo;
    }();
    return kind;
}

} // namespace

bool useEchoCard(linphone::Core &core)
{
    auto *const library = static_cast<LinphoneCore *>(linphone::Object::sharedPtrToCPtr(core.shared_from_this()));
    MSSndCard *card = ms_snd_card_new_with_name(&theKind(), "echo");
    card->capabilities = MS_SND_CARD_CAP_CAPTURE | MS_SND_CARD_CAP_PLAYBACK;
    ms_snd_card_manager_add_card(ms_factory_get_snd_card_manager(linphone_core_get_ms_factory(library)), card);
    const std::string id = ms_snd_card_get_string_id(card);
    return linphone_core_set_capture_device(library, id.c_str()) == 0 &&
           linphone_core_set_playback_device(library, id.c_str()) == 0;
}
